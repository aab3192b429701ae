#pragma once

#include <string>
#include <string_view>

namespace ovisto {

/// A regular expression for the text of a document that finds what `pattern` (UTF-8) finds in what people see: each
/// character beyond ASCII also where the document has it as a reference ("&#233;"), in either letter case, and where a
/// text that is in UTF-8 in the file was read byte by byte, as XMP is. "\b" beside such a letter is the edge of a word
/// for people, too. Characters in brackets or behind a backslash stay as they are.
std::string documentPattern(std::string_view pattern);

} // namespace ovisto
