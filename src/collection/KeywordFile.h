// SPDX-License-Identifier: MIT

#pragma once

#include "common/ErrorReport.h"

#include <cstddef>
#include <string>
#include <vector>

namespace ovisto {

/// Fills `keywords` from a text file in UTF-8 or Windows-1252, one keyword per line. Lines end with CR LF; a file
/// without any is one keyword. Empty lines are keywords too, including the one after a final line break. A file that
/// cannot be opened is reported and leaves `keywords` unchanged. One that cannot be read is reported, too, and replaces
/// `keywords` nevertheless.
void loadKeywords(const std::string& path, std::vector<std::string>& keywords, ErrorReporter& reporter);

/// What a click on `keyword` inserts in place of the selection in a text of `length` characters: the keyword, preceded
/// by a blank at the end of a text, and followed by one if text follows.
std::string keywordInsertion(const std::string& keyword, std::size_t length, std::size_t selectionStart,
                             std::size_t selectionLength);

} // namespace ovisto
