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

/// Whether the text contains a character with a code below 32.
bool StringHasControlChars(std::string_view Value);

} // namespace ovisto
