// SPDX-License-Identifier: MIT

#include "ui/ControlForm/EditedBoxes.h"

#include <QDragEnterEvent>
#include <QFocusEvent>
#include <QMimeData>
#include <QWidget>

#include <utility>

namespace ovisto {

namespace {

/// Whether the focus went to another control of the window, and not only for a while to a menu or another window.
bool isLeaving(const QFocusEvent& event)
{
    return event.reason() != Qt::PopupFocusReason && event.reason() != Qt::MenuBarFocusReason &&
           event.reason() != Qt::ActiveWindowFocusReason;
}

} // namespace

void EditedBoxes::add(QWidget& box, std::function<void()> leave)
{
    m_leave.emplace(&box, std::move(leave));
    box.installEventFilter(this);
}

void EditedBoxes::leaveFocused()
{
    leave(m_window.focusWidget());
}

void EditedBoxes::moveFocusTo(QWidget& control)
{
    const QWidget* left = m_window.focusWidget();
    control.setFocus();
    // In a window that is not in front, the focus moves without an event that says so.
    if (!m_window.isActiveWindow() && left != m_window.focusWidget())
        leave(left);
}

bool EditedBoxes::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusOut && isLeaving(*static_cast<QFocusEvent*>(event)))
        leave(watched);
    return leaveFilesToWindow(*event);
}

void EditedBoxes::leave(const QObject* box)
{
    const auto found = m_leave.find(box);
    if (found != m_leave.end())
        found->second();
}

bool leaveFilesToWindow(QEvent& event)
{
    if (event.type() != QEvent::DragEnter || !static_cast<QDragEnterEvent&>(event).mimeData()->hasUrls())
        return false;
    event.ignore();
    return true;
}

} // namespace ovisto
