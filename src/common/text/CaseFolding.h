// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

namespace ovisto {

/// The characters of `text` without the difference of upper and lower case, so that equal ones compare equal. A letter
/// that is written as several characters (a base and its marks) is one where Unicode has one for it.
std::u32string foldedCase(std::string_view text);

/// The same for texts to search in, as UTF-8: a letter with several characters in its other case becomes these
/// characters ("ß" becomes "ss"), and ASCII letters stay as they are. Bytes that are not UTF-8 stay too.
std::string foldedText(std::string text);

/// `text` (UTF-8) with each letter as one character where Unicode has one for it (normalization form C).
std::string composedText(std::string_view text);

} // namespace ovisto
