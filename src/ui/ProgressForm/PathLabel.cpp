// SPDX-License-Identifier: MIT

#include "ui/ProgressForm/PathLabel.h"

#include <QPainter>
#include <QStyle>

namespace ovisto {

QSize PathLabel::minimumSizeHint() const
{
    return {0, fontMetrics().height()};
}

void PathLabel::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, width());
    style()->drawItemText(&painter, rect(), static_cast<int>(alignment()), palette(), isEnabled(), shown,
                          foregroundRole());
}

} // namespace ovisto
