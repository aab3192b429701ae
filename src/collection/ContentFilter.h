#pragma once

#include "common/text/RegularExpression.h"

#include <string>
#include <vector>

namespace ovisto {

/// What the metadata of a file is to contain.
struct ContentSearch {
    std::string words;       ///< separated by commas, or one regular expression; empty: anything
    bool allWords = false;   ///< all of the words, not any one
    bool wholeWords = false; ///< not as a part of longer words; nothing to a regular expression
    bool regExp = false;     ///< `words` is a regular expression
};

/// Tells the files whose metadata contains what is searched for. It may be used by several threads at once.
class ContentFilter {
public:
    /// Raises kInvalidCall when what is searched for is no regular expression. The characters of regular expressions
    /// have their meaning in words too.
    explicit ContentFilter(const ContentSearch& search);

    /// Whether the text of the document of the JPEG file at `path` contains it: markup counts. Most characters beyond
    /// ASCII are there as references ("&#233;"); words find them (see documentPattern()), while a regular expression
    /// has to ask for the reference. A file that the reader
    /// cannot translate does not; where anything will do, no file is read. Raises what RegularExpression::matches()
    /// raises, with the file's name.
    bool keeps(const std::string& path) const;

private:
    std::vector<RegularExpression> m_expressions; // all of them have to match
};

} // namespace ovisto
