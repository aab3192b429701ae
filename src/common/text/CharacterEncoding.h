// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ovisto {

/// How the characters of a text stand in a file.
enum class CharacterEncoding {
    CodePage, ///< Windows-1252, a byte each
    Utf8,
    Utf16LittleEndian,
    Utf16BigEndian,
    Jis, ///< JIS X 0208 in two bytes of seven bits, with or without the escape sequences of ISO-2022-JP; read only
};

/// A character, and how many bytes of the file say it.
struct StoredCharacter {
    char32_t character = 0;
    std::size_t size = 0;
};

/// The characters of `bytes`, in any encoding but Jis. Bytes that say no character, and characters that XML cannot
/// hold, are U+FFFD.
std::vector<StoredCharacter> storedCharacters(std::span<const std::uint8_t> bytes, CharacterEncoding encoding);

/// The same as UTF-8 text, in any encoding.
std::string decodedText(std::span<const std::uint8_t> bytes, CharacterEncoding encoding);

/// The bytes of `text` in any encoding but Jis; none when the encoding lacks one of its characters.
std::optional<std::vector<std::uint8_t>> encodedText(std::u32string_view text, CharacterEncoding encoding);

/// Utf8 for bytes that are UTF-8 and more than ASCII, else CodePage: what people write in a code page is not UTF-8 by
/// chance.
CharacterEncoding narrowEncoding(std::span<const std::uint8_t> bytes);

/// How many of the units of two bytes look right in the given order: those with a zero high byte, as Latin letters
/// have, and those that are pairs of surrogates.
std::size_t unitsInOrder(std::span<const std::uint8_t> units, CharacterEncoding order);

} // namespace ovisto
