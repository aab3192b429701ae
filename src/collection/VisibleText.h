// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

namespace ovisto {

/// The text of a full document with its values as people see them: characters instead of references to them, also in
/// the XML that a segment may hold, and sections of a payload joined to one. The markup stays.
std::string visibleText(std::string documentText);

/// A regular expression that matches in folded text (see foldedText()) what `pattern` (UTF-8) matches in any case.
std::string foldedPattern(std::string_view pattern);

} // namespace ovisto
