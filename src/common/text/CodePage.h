// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ovisto {

// Single bytes of a file are characters of code page Windows-1252. Each C1 control (U+0080 to U+009F) also stands for
// the byte of the same number: the document writes bytes 129 to 159 as references with that number, so every byte of a
// file survives the round trip through the document.

/// The character of `byte`. The five bytes that Windows-1252 leaves undefined become the C1 control of the same number.
char32_t codePageCharacter(std::uint8_t byte);

/// The byte of `character`; that of "?" if the code page has none.
std::uint8_t codePageByte(char32_t character);

/// One byte for each character of the UTF-8 text.
std::vector<std::uint8_t> codePageBytes(std::string_view text);

/// What happens to bytes below 32 other than tab, LF and CR.
enum class ControlBytes { Keep, Drop };

/// Appends the characters of `bytes` to the UTF-8 text.
void appendCharacters(std::string& text, std::span<const std::uint8_t> bytes, ControlBytes controlBytes);

/// Text from outside: `bytes` unchanged if they are UTF-8, else their characters in the code page. What people write in
/// a code page is not UTF-8 by chance.
std::string decodedText(std::string_view bytes);

} // namespace ovisto
