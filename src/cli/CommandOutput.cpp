// SPDX-License-Identifier: MIT

#include "cli/CommandOutput.h"

#include "cli/Command.h"
#include "cli/TerminalText.h"
#include "common/system/Interruption.h"

#include <cstdio>

namespace ovisto {

void LineReporter::report(const Phrase& context, const Error& error)
{
    m_lines += errorLine(context, error.description);
}

void CommandOutput::write(const FileResult& result)
{
    m_failed = m_failed || hasFailed(result);
    const std::string lines = result.notes + result.errors;
    if (result.output.empty() && lines.empty())
        return;
    m_progress.aside([&] {
        std::fwrite(result.output.data(), 1, result.output.size(), stdout);
        if (lines.empty())
            return;
        std::fflush(stdout);
        std::fputs(lines.c_str(), stderr);
    });
}

void CommandOutput::conclude(std::size_t done, std::size_t total, const std::string& counts)
{
    const std::string end = counts.empty() ? "" : ": " + counts;
    if (interrupted())
        write({.notes = errorLine("", "Interrupted after " + groupedNumber(done) + " of " + groupedNumber(total) +
                                          " files" + end)});
    else if (m_progress.isTerminal() && total > 1 && !counts.empty())
        write({.notes = counts + "\n"});
}

void CommandOutput::report(const Phrase& context, const Error& error)
{
    fail(errorLine(context, error.description));
}

bool CommandOutput::flush()
{
    m_progress.aside([] {});
    if (!m_lost && (std::fflush(stdout) != 0 || std::ferror(stdout) != 0)) {
        m_lost = true;
        fail(errorLine("", "Standard output cannot be written"));
    }
    return !m_lost;
}

int CommandOutput::finish()
{
    flush();
    return m_failed ? kSomeFailed : kAllDone;
}

} // namespace ovisto
