// SPDX-License-Identifier: MIT

#include "ui/ControlForm/PictureBox.h"

#include "ui/App/PictureFit.h"

#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace ovisto {

PictureBox::PictureBox(QWidget* parent) : QFrame(parent)
{
    constexpr int kSettled = 150; // milliseconds after which a size is taken for the final one
    m_resized.setSingleShot(true);
    m_resized.setInterval(kSettled);
    connect(&m_resized, &QTimer::timeout, this, &PictureBox::fitAgain);
}

void PictureBox::showFile(const std::string& path, ErrorReporter& reporter)
{
    m_path = path;
    m_picture = PictureFit(path, paneSize(), reporter);
    m_message = m_picture.isNull() ? tr("This file cannot be shown as a picture.") : QString();
    update();
}

void PictureBox::showPicture(const QImage& picture)
{
    clear();
    m_picture = picture;
}

void PictureBox::clear()
{
    m_path.clear();
    m_picture = {};
    m_message.clear();
    update();
}

QSize PictureBox::sizeHint() const
{
    return {320, 240};
}

void PictureBox::paintEvent(QPaintEvent* event)
{
    QFrame::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (m_picture.isNull()) {
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(rect().marginsRemoved({8, 8, 8, 8}), Qt::AlignCenter | Qt::TextWordWrap,
                         m_message.isEmpty() ? m_placeholder : m_message);
        return;
    }
    // Larger than the pane only until fitAgain() runs.
    const QSize size = (fittedSize(m_picture.size(), paneSize()) / devicePixelRatioF()).expandedTo({1, 1});
    QRect place(QPoint(), size);
    place.moveCenter(rect().center());
    painter.drawImage(place, m_picture);
}

void PictureBox::resizeEvent(QResizeEvent* /*event*/)
{
    if (!m_path.empty() && !m_picture.isNull())
        m_resized.start();
}

void PictureBox::mouseReleaseEvent(QMouseEvent* event)
{
    if (!std::exchange(m_doubleClicked, false) && rect().contains(event->position().toPoint()))
        Q_EMIT clicked(event->button());
}

/// The first click of two has opened the file already.
void PictureBox::mouseDoubleClickEvent(QMouseEvent* /*event*/)
{
    m_doubleClicked = true;
}

/// In pixels of the screen, which may be finer than those of the layout.
QSize PictureBox::paneSize() const
{
    return (QSizeF(contentsRect().size()) * devicePixelRatioF()).toSize().expandedTo({1, 1});
}

void PictureBox::fitAgain()
{
    if (m_path.empty())
        return;
    // A file that has become unreadable meanwhile keeps the picture it had.
    ErrorTrap trap;
    trap.run([&] { m_picture = fittedPicture(m_path, paneSize()); });
    update();
}

} // namespace ovisto
