// SPDX-License-Identifier: MIT

#include "ui/App/WindowFrame.h"

#include "ui/App/Placement.h"

#include <QEvent>
#include <QScreen>
#include <QWidget>

#include <utility>

namespace ovisto {

namespace {

QMargins currentMargins(const QWidget& window)
{
    const QRect frame = window.frameGeometry();
    const QRect content = window.geometry();
    return {content.left() - frame.left(), content.top() - frame.top(), frame.right() - content.right(),
            frame.bottom() - content.bottom()};
}

} // namespace

WindowFrame::WindowFrame(QWidget& window) : QObject(&window), m_window(window)
{
    window.installEventFilter(this);
}

bool WindowFrame::eventFilter(QObject* /*watched*/, QEvent* event)
{
    // A window that is shown maximized has no size of its own to see to: when it gets its normal one, the events for
    // its state and its size come one after the other.
    if (event->type() == QEvent::Show && fillsScreen(m_window))
        m_isFitted = true;
    const bool mayHaveFrame =
        event->type() == QEvent::Show || event->type() == QEvent::Move || event->type() == QEvent::Resize;
    if (mayHaveFrame && m_window.isVisible() && !fillsScreen(m_window) && !currentMargins(m_window).isNull()) {
        m_margins = currentMargins(m_window);
        if (!std::exchange(m_isFitted, true))
            fit();
    }
    return false;
}

void WindowFrame::fit()
{
    const QRect fitting = movedOnto({m_window.screen()->availableGeometry()}, m_window.frameGeometry());
    m_window.resize(fitting.marginsRemoved(m_margins).size());
    m_window.move(fitting.topLeft());
}

} // namespace ovisto
