// SPDX-License-Identifier: MIT

#pragma once

#include "ui/SlideForm/SlideTimer.h"

#include <cstdint>
#include <vector>

namespace ovisto {

/// The position of a show in the list, and whether it advances by itself.
class SlideClockwork {
public:
    /// `timer` must outlive the clockwork.
    explicit SlideClockwork(SlideTimer& timer) : m_timer(timer) {}

    /// The row of the list that is shown; -1 if none was selected.
    int row() const { return m_row; }
    void setRow(int row) { m_row = row; }

    /// Starts the timer. With 0 seconds or less, only keys move the show; with more than 32 as well, and kOverflow is
    /// raised.
    void run(std::int16_t seconds);
    void stop();

    /// The rows of a list of `count` files that are needed now and next: the one shown, then its neighbours, starting
    /// with the one that the show is heading for. Empty if no file is shown.
    std::vector<int> neededRows(int count) const;

    /// Steps through a list of `count` files, wrapping around at the ends. A step back resumes a paused show.
    void next(int count);
    void previous(int count);

    /// Stops the timer or restarts it. Returns false if the show has no timer.
    bool togglePause();
    bool isPaused() const { return m_interval > 0 && !m_running; }

private:
    void restart();

    SlideTimer& m_timer;
    int m_row = -1;
    int m_interval = 0; ///< in milliseconds; 0 if only keys move the show
    bool m_running = false;
    bool m_backward = false; ///< the last step went back
};

} // namespace ovisto
