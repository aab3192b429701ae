#include "ui/SlideForm/SlideClockwork.h"

#include "common/Error.h"

#include <algorithm>
#include <limits>

namespace ovisto {

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

void SlideClockwork::next(int count)
{
    m_row = m_row >= count - 1 ? 0 : m_row + 1;
}

void SlideClockwork::previous(int count)
{
    stop();
    m_row = m_row > 0 ? std::min(m_row, count) - 1 : count - 1;
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
