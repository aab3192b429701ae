// SPDX-License-Identifier: MIT

#pragma once

#include "ui/SlideForm/SlideTimer.h"

namespace ovisto::test {

/// A timer for which time passes when a test says so.
class TestTimer : public SlideTimer {
public:
    int interval = 0; ///< milliseconds; 0 while it does not run

    void start(int milliseconds) override { interval = milliseconds; }
    void stop() override { interval = 0; }

    /// Lets as much time pass as the timer waits for, if it runs.
    void pass()
    {
        if (interval > 0)
            Q_EMIT fired();
    }
};

} // namespace ovisto::test
