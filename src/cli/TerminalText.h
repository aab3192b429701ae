// SPDX-License-Identifier: MIT

#pragma once

#include "common/Phrase.h"

#include <cstddef>
#include <string>

namespace ovisto {

/// One line for standard error: the program's name, `context` (a path, mostly) unless `message` ends with it, and
/// `message`.
std::string errorLine(const Phrase& context, const Phrase& message);

/// `text` on one line and harmless to a terminal: a run of line breaks or control characters becomes a blank, and text
/// beyond `mostColumns` is cut.
std::string oneLine(const std::string& text, std::size_t mostColumns = std::string::npos);

/// A number for people, with commas between groups of three digits.
std::string groupedNumber(std::size_t number);

} // namespace ovisto
