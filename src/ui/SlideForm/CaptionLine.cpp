// SPDX-License-Identifier: MIT

#include "ui/SlideForm/CaptionLine.h"

#include "ui/SlideForm/SlideDetails.h"

#include <QPainter>

namespace ovisto {

void CaptionLine::showTexts(const QString& title, const QString& facts)
{
    m_title = title;
    m_facts = facts;
    setText(SlideDetails{title, facts}.line());
}

QSize CaptionLine::sizeHint() const
{
    return {QLabel::sizeHint().width(), minimumSizeHint().height()};
}

QSize CaptionLine::minimumSizeHint() const
{
    return {0, 2 * fontMetrics().lineSpacing() + 2 * margin()};
}

QStringList CaptionLine::shownLines() const
{
    const int room = contentsRect().width();
    const bool fits = m_title.isEmpty() || m_facts.isEmpty() || fontMetrics().horizontalAdvance(text()) <= room;
    QStringList lines = fits ? QStringList{text()} : QStringList{m_title, m_facts};
    for (QString& line : lines)
        line = fontMetrics().elidedText(line, Qt::ElideRight, room);
    return lines;
}

void CaptionLine::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(contentsRect(), Qt::AlignCenter, shownLines().join(QLatin1Char('\n')));
}

} // namespace ovisto
