// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ovisto {

/// ` name="value"`, with the value escaped.
std::string xmlAtt(std::string_view attName, std::string_view attVal);
/// The same for a number as numberText() writes it.
std::string xmlAtt(std::string_view attName, std::int64_t attVal);

/// Escapes a text for the document. Markup characters become entities. A character whose code in the code page is below
/// 32 or above 128 becomes a reference with that code; one without a code becomes "?".
std::string XMLSanitize(std::string_view Value);

/// The same for full documents, which hold any character: markup, tab, LF and CR become references, what XML cannot
/// hold becomes U+FFFD, and all others stand for themselves.
std::string escapedText(std::string_view text);
/// ` name="value"`, with the value escaped by escapedText().
std::string attributeText(std::string_view name, std::string_view value);

/// A text as the content of an element, in CDATA sections. A section cannot hold its own end or CR, so these stand
/// between two of them.
std::string cdataText(std::string_view text);

/// Whether the text contains a character with a code below 32.
bool StringHasControlChars(std::string_view Value);

} // namespace ovisto
