// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

namespace ovisto {

/// A regular expression that finds in the text of a document what `pattern` (UTF-8) finds in the text that people see.
/// It matches each character beyond ASCII also as a reference ("&#233;"), in either case, and as UTF-8 that was read
/// byte by byte, as XMP is. "\b" next to such a letter is a word boundary, as people see it. Characters in brackets or
/// after a backslash stay as they are.
std::string documentPattern(std::string_view pattern);

} // namespace ovisto
