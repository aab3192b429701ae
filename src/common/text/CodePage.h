#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ovisto {

// Text is UTF-8 inside the program. Single bytes of a file are characters of code page Windows-1252. Each C1 control
// (U+0080 to U+009F) also stands for the byte of its own number: the document names the characters of the bytes 129 to
// 159 by that number, and so every byte of a file survives the way into the document and back.

/// The character of `byte`. The five bytes that Windows-1252 leaves undefined are the C1 control of the same number.
char32_t codePageCharacter(std::uint8_t byte);

/// The byte of `character`; that of "?" when the code page has none.
std::uint8_t codePageByte(char32_t character);

/// One byte for each character of the UTF-8 text.
std::vector<std::uint8_t> codePageBytes(std::string_view text);

/// Appends `character` to the UTF-8 text.
void appendCharacter(std::string& text, char32_t character);

/// What becomes of the bytes below 32 other than tab, LF and CR.
enum class ControlBytes { Keep, Drop };

/// Appends the characters of `bytes` to the UTF-8 text.
void appendCharacters(std::string& text, std::span<const std::uint8_t> bytes, ControlBytes controlBytes);

bool isUtf8(std::string_view text);

/// The characters of a UTF-8 text. Bytes that are no UTF-8 (a file name may hold any) count as "?".
std::u32string characters(std::string_view text);

/// Calls `use` with each of them, one after the other.
void forEachCharacter(std::string_view text, const std::function<void(char32_t)>& use);

/// How many characters (not bytes, not UTF-16 units) the UTF-8 text has.
std::size_t characterCount(std::string_view text);

/// The UTF-16 units of a UTF-8 text.
std::u16string utf16(std::string_view text);

/// The same as bytes, the less significant one of a unit first.
std::string utf16Bytes(std::string_view text);

} // namespace ovisto
