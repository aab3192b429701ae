#pragma once

#include "cli/FileLoop.h"
#include "cli/TerminalProgress.h"

#include <string>

namespace ovisto {

/// Standard output and standard error of a command, with its progress bar out of their way.
class CommandOutput {
public:
    /// Writes what became of a file. An error makes the command one that failed.
    void write(const FileResult& result);
    /// Writes a line to standard error.
    void fail(const std::string& errorLine) { write({.output = {}, .errors = errorLine}); }

    /// Ends the output. Returns the exit status of the command.
    int finish();

    Progress& progress() { return m_progress; }

private:
    TerminalProgress m_progress;
    bool m_failed = false;
};

} // namespace ovisto
