#pragma once

#include "common/Progress.h"

#include <chrono>

namespace ovisto {

/// A progress bar on the last line of a terminal (standard error), drawn only where there is one and more than one
/// file to do. It stops when the program was asked to end, where that is deferred.
class TerminalProgress : public Progress {
public:
    TerminalProgress();
    ~TerminalProgress() override { clear(); }

    bool step(const std::string& path, std::size_t done, std::size_t total) override;

    /// Takes the bar away, so that something else can be written.
    void clear();

private:
    bool m_isTerminal;
    bool m_drawn = false;
    std::chrono::steady_clock::time_point m_lastDrawn;
};

} // namespace ovisto
