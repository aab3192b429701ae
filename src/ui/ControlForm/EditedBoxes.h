// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

#include <functional>
#include <unordered_map>

class QEvent;
class QWidget;

namespace ovisto {

/// The boxes of a window in which values are edited. What was typed into a box takes effect when the focus leaves it.
class EditedBoxes : public QObject {
    Q_OBJECT

public:
    explicit EditedBoxes(QWidget& window) : m_window(window) {}

    /// `leave` is called when the focus leaves `box` for another control of the window, even if nothing was typed.
    void add(QWidget& box, std::function<void()> leave);

    /// Applies what was typed into the box with the focus, which keeps it.
    void leaveFocused();
    /// Moves the focus to `control`, leaving the box being edited.
    void moveFocusTo(QWidget& control);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void leave(const QObject* box);

    QWidget& m_window;
    std::unordered_map<const QObject*, std::function<void()>> m_leave;
};

/// Leaves files that are dragged onto a control to the window. Returns true if `event` is about such files; the control
/// must then not see it.
bool leaveFilesToWindow(QEvent& event);

} // namespace ovisto
