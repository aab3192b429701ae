// SPDX-License-Identifier: MIT

#include "ui/SlideForm/SlideClockwork.h"

#include "common/Error.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace ovisto {

namespace {

// The list may have become shorter since the row was shown.

int rowAfter(int row, int count)
{
    return row >= count - 1 ? 0 : row + 1;
}

int rowBefore(int row, int count)
{
    return row > 0 ? std::min(row, count) - 1 : count - 1;
}

} // namespace

void SlideClockwork::run(std::int16_t seconds)
{
    // The interval is a number of 16 bits: it has room for 32 seconds.
    const int interval = seconds * 1000;
    if (interval > std::numeric_limits<std::int16_t>::max() || interval < std::numeric_limits<std::int16_t>::min())
        throw systemError(kOverflow);
    m_interval = std::max(interval, 0);
    restart();
}

void SlideClockwork::stop()
{
    m_timer.stop();
    m_running = false;
}

std::vector<int> SlideClockwork::neededRows(int count) const
{
    if (m_row < 0 || m_row >= count)
        return {};
    std::vector<int> rows = {m_row, rowAfter(m_row, count), rowBefore(m_row, count)};
    if (m_backward)
        std::swap(rows[1], rows[2]);
    return rows;
}

void SlideClockwork::next(int count)
{
    m_row = rowAfter(m_row, count);
    m_backward = false;
}

void SlideClockwork::previous(int count)
{
    stop();
    m_row = rowBefore(m_row, count);
    m_backward = true;
    restart();
}

bool SlideClockwork::togglePause()
{
    if (m_interval == 0)
        return false;
    if (m_running)
        stop();
    else
        restart();
    return true;
}

void SlideClockwork::restart()
{
    if (m_interval == 0)
        return;
    m_timer.start(m_interval);
    m_running = true;
}

} // namespace ovisto
