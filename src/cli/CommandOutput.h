// SPDX-License-Identifier: MIT

#pragma once

#include "cli/FileLoop.h"
#include "cli/TerminalProgress.h"
#include "common/ErrorReport.h"

#include <cstddef>
#include <string>

namespace ovisto {

/// Turns each report into a line.
class LineReporter : public ErrorReporter {
public:
    /// `lines` must outlive the object.
    explicit LineReporter(std::string& lines) : m_lines(lines) {}

    void report(const Phrase& context, const Error& error) override;

private:
    std::string& m_lines;
};

/// Standard output and standard error of a command; keeps the progress bar out of their way. Reports go to standard
/// error immediately.
class CommandOutput : public ErrorReporter {
public:
    /// Writes the result of a file. An error makes the command fail.
    void write(const FileResult& result);

    void report(const Phrase& context, const Error& error) override;

    /// Says how far the command came with its files: after an interruption, and on a terminal when it has `counts` of
    /// more than one file.
    void conclude(std::size_t done, std::size_t total, const std::string& counts = {});

    /// Whether standard output has everything that was written. Reports it when it does not.
    bool flush();

    /// Ends the output. Returns the exit status of the command.
    int finish();

    Progress& progress() { return m_progress; }

private:
    void fail(const std::string& errorLine) { write({.output = {}, .errors = errorLine}); }

    TerminalProgress m_progress;
    bool m_failed = false;
    bool m_lost = false; ///< something on standard output
};

} // namespace ovisto
