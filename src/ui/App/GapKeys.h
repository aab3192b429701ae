// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractSlider>
#include <QObject>
#include <QPointer>
#include <QRect>
#include <QString>

#include <functional>
#include <vector>

namespace ovisto {

/// A gap that can be moved: between two parts of a splitter, or two columns of a tree.
struct Gap {
    QString name;                  ///< what it changes
    Qt::Orientation direction;     ///< in which it moves
    std::function<QRect()> place;  ///< in the window
    std::function<int()> size;     ///< of the part before it, in pixels
    std::function<int()> largest;  ///< size of that part, roughly
    std::function<void(int)> move; ///< changes that size, as far as there is room
};

/// The gaps of a window that are visible, from left to right and from the top down.
std::vector<Gap> gapsOf(QWidget& window);

/// Stands on a gap while keys move it, and shows where it is.
class GapMark : public QAbstractSlider {
    Q_OBJECT

public:
    explicit GapMark(QWidget& window);

    void standOn(const Gap& gap);

Q_SIGNALS:
    /// The person is done with the gaps.
    void left();

protected:
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void move();
    void follow();

    Gap m_gap;
};

/// Lets keys move the gaps of a window: F8 goes to the first gap and from each to the next, arrow keys move it, and Esc
/// goes back to the control that had the focus.
class GapKeys : public QObject {
    Q_OBJECT

public:
    /// Belongs to `window`.
    explicit GapKeys(QWidget& window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void next();
    void leave();

    QWidget& m_window;
    GapMark& m_mark;
    std::size_t m_next = 0; ///< the place of the gap that comes after the marked one
    QPointer<QWidget> m_before;
};

} // namespace ovisto
