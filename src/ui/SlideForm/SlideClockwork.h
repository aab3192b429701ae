#pragma once

#include "ui/SlideForm/SlideTimer.h"

#include <cstdint>
#include <vector>

namespace ovisto {

/// Which file of the list a show is at, and whether it goes on by itself.
class SlideClockwork {
public:
    /// `timer` must outlive the clockwork.
    explicit SlideClockwork(SlideTimer& timer) : m_timer(timer) {}

    /// The row of the list that is shown; -1 when none was selected.
    int row() const { return m_row; }
    void setRow(int row) { m_row = row; }

    /// Lets the timer run; with 0 seconds or less, only keys move the show. Raises kOverflow for more than 32 seconds:
    /// the show is moved by keys then, too.
    void run(std::int16_t seconds);
    void stop();

    /// The rows of a list of `count` files that are needed now and next: the one that is shown, and its neighbours, the
    /// one first where the show is going to. None when no file is shown.
    std::vector<int> neededRows(int count) const;

    /// Steps through a list of `count` files, whose ends meet. A step back lets a paused show run again.
    void next(int count);
    void previous(int count);

    /// Stops the timer, or lets it run again. Returns false when there is no timer to stop.
    bool togglePause();
    bool isPaused() const { return m_interval > 0 && !m_running; }

private:
    void restart();

    SlideTimer& m_timer;
    int m_row = -1;
    int m_interval = 0; ///< milliseconds; 0: moved by keys only
    bool m_running = false;
    bool m_backward = false; ///< the last step went back
};

} // namespace ovisto
