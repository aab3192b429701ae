// SPDX-License-Identifier: MIT

#include "cli/TerminalProgress.h"

#include "cli/TerminalText.h"

#include "common/system/Interruption.h"
#include "common/system/Process.h"
#include "common/text/PathText.h"

#include <cstdio>

namespace ovisto {

TerminalProgress::TerminalProgress() : m_isTerminal(isErrorOutputTerminal()) {}

bool TerminalProgress::step(const std::string& path, std::size_t done, std::size_t total)
{
    using namespace std::chrono_literals;
    constexpr auto kInterval = 100ms;
    constexpr std::size_t kWidth = 24;
    constexpr std::size_t kMostName = 40;
    const auto now = std::chrono::steady_clock::now();
    if (interrupted())
        return false;
    const std::lock_guard lock(m_mutex);
    if (!m_isTerminal || total == 1 || now - m_lastDrawn < kInterval)
        return true;
    m_lastDrawn = now;
    std::string text = std::to_string(done);
    if (total > 0) {
        const std::size_t filled = kWidth * done / total;
        const std::string bar = std::string(filled, '#') + std::string(kWidth - filled, '.');
        text = "[" + bar + "] " + text + "/" + std::to_string(total);
    }
    std::fprintf(stderr, "\r\033[K%s %s", text.c_str(), oneLine(splitPath(path).name, kMostName).c_str());
    m_drawn = true;
    return true;
}

void TerminalProgress::clear()
{
    if (m_drawn)
        std::fputs("\r\033[K", stderr);
    m_drawn = false;
}

} // namespace ovisto
