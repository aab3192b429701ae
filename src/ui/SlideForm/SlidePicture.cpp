// SPDX-License-Identifier: MIT

#include "ui/SlideForm/SlidePicture.h"

#include "ui/App/PictureFit.h"

#include <QMouseEvent>
#include <QPainter>

namespace ovisto {

void SlidePicture::showPicture(const QImage& picture)
{
    m_picture = picture;
    m_text.clear();
    setAccessibleDescription({});
    update();
}

void SlidePicture::showText(const QString& text)
{
    m_picture = {};
    m_text = text;
    setAccessibleDescription(text);
    update();
}

void SlidePicture::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    if (m_picture.isNull()) {
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(rect().adjusted(8, 8, -8, -8), Qt::AlignCenter | Qt::TextWordWrap, m_text);
        return;
    }
    // In points of the screen, which may be finer than those of the layout.
    const qreal ratio = devicePixelRatioF();
    const QRect pane(QPoint(), (QSizeF(size()) * ratio).toSize());
    // Larger than the pane only for the moment after the window was made smaller.
    QRect place(QPoint(), fittedSize(m_picture.size(), pane.size()));
    place.moveCenter(pane.center());
    painter.scale(1 / ratio, 1 / ratio);
    painter.drawImage(place, m_picture);
}

void SlidePicture::mouseReleaseEvent(QMouseEvent* event)
{
    if (rect().contains(event->position().toPoint()))
        Q_EMIT clicked();
}

} // namespace ovisto
