// SPDX-License-Identifier: MIT

#pragma once

#include "common/Progress.h"

#include <chrono>
#include <mutex>

namespace ovisto {

/// A progress bar on the last line of a terminal (standard error). Drawn only on a terminal and for more than one file.
/// Stops the loop after a deferred request to end the program. Several threads may use it at once.
class TerminalProgress : public Progress {
public:
    TerminalProgress();
    ~TerminalProgress() override { clear(); }

    bool step(const std::string& path, std::size_t done, std::size_t total) override;

    /// Removes the bar, so that something else can be written, and has `write` write it.
    template <class Write> void aside(Write write)
    {
        const std::lock_guard lock(m_mutex);
        clear();
        write();
    }

    bool isTerminal() const { return m_isTerminal; }

private:
    void clear();

    std::mutex m_mutex;
    bool m_isTerminal;
    bool m_drawn = false;
    std::chrono::steady_clock::time_point m_lastDrawn;
};

} // namespace ovisto
