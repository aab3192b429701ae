// SPDX-License-Identifier: MIT

#pragma once

#include "common/Error.h"
#include "common/text/RegularExpression.h"
#include "document/Reading.h"
#include "document/ValueText.h"

#include <optional>
#include <string>
#include <vector>

namespace ovisto {

/// What the metadata of a file must contain.
struct ContentSearch {
    std::string words;       ///< UTF-8, separated by commas, or one regular expression; empty for anything
    bool allWords = false;   ///< all of the words, not just any
    bool wholeWords = false; ///< only whole words; ignored for a regular expression
    bool regExp = false;     ///< `words` is a regular expression
    Reading reading = Reading::Full;
    ValueTexts values = {}; ///< with a dictionary, the texts of values are searched, too
};

/// Why nothing can be searched for in this way: what was typed is not a regular expression. Empty when it is one.
Phrase objection(const ContentSearch& search);

/// The files on which a search failed. An expression that runs too long on some would do so on many others, and each
/// takes a moment.
class FailedChecks {
public:
    void add(const Error& error);

    /// Whether there are so many that the search should end.
    bool areTooMany() const { return m_count >= kMost; }

    /// One error that stands for all; nothing if none failed.
    std::optional<Error> summary() const;

private:
    static constexpr int kMost = 10;

    std::optional<Error> m_first;
    int m_count = 0;
};

/// Decides whether the metadata of a file contains what is searched for. Several threads may use it at once.
class ContentFilter {
public:
    /// Raises kInvalidCall if the search is not a valid regular expression. Words may contain regular-expression
    /// characters, with their special meaning.
    explicit ContentFilter(const ContentSearch& search);

    /// True if the document text of the JPEG file at `path`, markup included, matches, followed by the texts of its
    /// values if the search asks for them. False for a file that the reader cannot translate. With nothing to search
    /// for, true without opening the file. Raises the errors of RegularExpression::matches(), with the file's name.
    ///
    /// In a full document everything is searched as people see it: no character is a reference. Words match in any
    /// case and spelling of their letters (see foldedText()), and whole words by the letters of all scripts.
    ///
    /// In a basic one most characters beyond ASCII are references ("&#233;"): words find them (see documentPattern()),
    /// a regular expression must ask for the reference.
    bool keeps(const std::string& path) const;

private:
    std::string searchedText(std::string documentText) const;

    Reading m_reading;
    ValueTexts m_values;
    bool m_foldsText;                             // as words in full documents need it
    std::vector<RegularExpression> m_expressions; // all of them must match
};

} // namespace ovisto
