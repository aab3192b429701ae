#pragma once

#include <QObject>

#include <functional>
#include <unordered_map>

class QEvent;
class QWidget;

namespace ovisto {

/// The boxes of a window in which values are edited. What was typed into one counts when it is left.
class EditedBoxes : public QObject {
    Q_OBJECT

public:
    explicit EditedBoxes(QWidget& window) : m_window(window) {}

    /// `leave` takes what was typed. It is called when the focus leaves `box` for another control of the window, and
    /// may be called when nothing was typed.
    void add(QWidget& box, std::function<void()> leave);

    /// Takes what was typed into the box that has the focus, which stays there.
    void leaveFocused();
    /// Leaves the box being edited for `control`.
    void moveFocusTo(QWidget& control);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void leave(const QObject* box);

    QWidget& m_window;
    std::unordered_map<const QObject*, std::function<void()>> m_leave;
};

/// Leaves files that are dragged onto a control to the window around it. Returns whether `event` is about such files:
/// the control must not see it then.
bool leaveFilesToWindow(QEvent& event);

} // namespace ovisto
