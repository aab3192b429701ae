#pragma once

#include "common/ErrorReport.h"

#include <cstddef>
#include <string>
#include <vector>

namespace ovisto {

/// Fills `keywords` from a text file, one keyword a line, in UTF-8 or code page Windows-1252. Empty lines are keywords
/// too, and so is the one behind a line break at the end. Lines end with CR LF: a file without has one keyword. A file
/// that cannot be opened is reported and leaves `keywords` as they are; one that cannot be read is reported too.
void loadKeywords(const std::string& path, std::vector<std::string>& keywords, ErrorReporter& reporter);

/// What a click on `keyword` puts in the place of the selection of a text with `length` characters: the keyword, with a
/// blank before it at the end of a text, and one behind it where text follows.
std::string keywordInsertion(const std::string& keyword, std::size_t length, std::size_t selectionStart,
                             std::size_t selectionLength);

} // namespace ovisto
