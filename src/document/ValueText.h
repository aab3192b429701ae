// SPDX-License-Identifier: MIT

#pragma once

#include "document/Reading.h"
#include "document/TagDictionary.h"
#include "document/ValueWords.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ovisto {

/// What people say for `raw`, the text that a document has for the value of `entry`: "1/125 s" for "1/125", "turned
/// right (6)" for "6". The format of the entry decides. A text that does not fit it, or has none, stays as it is.
/// Raises nothing.
std::string valueText(const DictionaryEntry& entry, std::string_view raw, const ValueWords& words);

/// The same for a value of a document, whose data type (see shownDataType()) may be another than the entry expects.
/// None for what stays as it is.
std::optional<std::string> valueMeaning(const DictionaryEntry& entry, std::string_view raw, int dataType,
                                        const ValueWords& words);

/// A value that an entry names.
struct EnumeratedValue {
    std::string raw; ///< as a document has it
    std::string text;
};

/// All the values that the entry names, as documents of this reading have them; those of flags, which are parts of
/// values, are not among them.
std::vector<EnumeratedValue> enumeratedValues(const DictionaryEntry& entry, Reading reading);

/// Where the texts of values come from. Both must outlive it; several threads may use one at once.
struct ValueTexts {
    const TagDictionary* dictionary = nullptr; ///< without it, all values stay as they are
    const ValueWords* words = &englishValueWords();

    /// The text of the value of `node`, an element of a metadata document or of the combined documents.
    std::string of(const ConstXmlNode& node) const;
};

} // namespace ovisto
