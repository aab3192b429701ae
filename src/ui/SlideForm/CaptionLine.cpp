#include "ui/SlideForm/CaptionLine.h"

#include <QPainter>

namespace ovisto {

QSize CaptionLine::minimumSizeHint() const
{
    return {0, QLabel::minimumSizeHint().height()};
}

void CaptionLine::paintEvent(QPaintEvent* /*event*/)
{
    const QRect line = contentsRect();
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(line, Qt::AlignCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(text(), Qt::ElideRight, line.width()));
}

} // namespace ovisto
