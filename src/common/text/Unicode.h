// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

namespace ovisto {

// Text is UTF-8 inside the program.

bool isUtf8(std::string_view text);

/// How many bytes in front are ASCII, as nearly all are: each of them is a character, and much is simple then.
std::size_t asciiPrefix(std::string_view text);

/// Appends `character` to the UTF-8 text.
void appendCharacter(std::string& text, char32_t character);

/// `character` if XML 1.0 can hold it (its production Char), else U+FFFD, the replacement character.
constexpr char32_t xmlCharacter(char32_t character)
{
    const bool isControl = character < 32 && character != '\t' && character != '\n' && character != '\r';
    const bool isSurrogate = character >= 0xD800 && character <= 0xDFFF;
    const bool isNoCharacter = character == 0xFFFE || character == 0xFFFF || character > 0x10FFFF;
    return isControl || isSurrogate || isNoCharacter ? 0xFFFD : character;
}

/// The characters of a UTF-8 text. Bytes that are not UTF-8 (a file name may hold any) count as "?".
std::u32string characters(std::string_view text);

/// Calls `use` with each of them, one after the other.
void forEachCharacter(std::string_view text, const std::function<void(char32_t)>& use);

/// How many characters (not bytes, not UTF-16 units) the UTF-8 text has.
std::size_t characterCount(std::string_view text);

/// The UTF-16 units of a UTF-8 text.
std::u16string utf16(std::string_view text);

/// The same as little-endian bytes.
std::string utf16Bytes(std::string_view text);

} // namespace ovisto
