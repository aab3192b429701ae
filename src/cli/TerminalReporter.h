#pragma once

#include "common/ErrorReport.h"

#include <optional>
#include <string>

namespace ovisto {

/// Keeps what is reported about one file, for one line on a terminal. The first report counts: those after it say what
/// could not be done because of it.
class TerminalReporter : public ErrorReporter {
public:
    void report(const std::string& context, const Error& error) override;

    /// The line about `path`: the first report, or `error` when nothing was reported. Ended by a line feed.
    std::string line(const std::string& path, const Error& error) const;

private:
    std::optional<std::string> m_first;
};

/// One line for standard error: the program's name, `path` unless `message` ends with it, and `message`.
std::string errorLine(const std::string& path, const std::string& message);

/// `text` on one line and harmless to a terminal: line breaks and controls are blanks, and what is longer than
/// `mostCharacters` is cut.
std::string oneLine(const std::string& text, std::size_t mostCharacters);

} // namespace ovisto
