#pragma once

#include <cstddef>
#include <string>

namespace ovisto {

/// One line for standard error: the program's name, `path` unless `message` ends with it, and `message`.
std::string errorLine(const std::string& path, const std::string& message);

/// `text` on one line and harmless to a terminal: line breaks and controls are blanks, and what is longer than
/// `mostCharacters` is cut.
std::string oneLine(const std::string& text, std::size_t mostCharacters = std::string::npos);

} // namespace ovisto
