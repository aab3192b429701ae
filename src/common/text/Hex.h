#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ovisto {

/// The value of a hexadecimal digit of either case; 0 for any other character.
std::uint8_t HexDigit(char digit);

/// The byte that two hexadecimal digits name: the first and the last character of `text`, which must not be empty. A
/// single character stands for both digits.
std::uint8_t HexToByte(std::string_view text);

/// The number that the first four characters of `text` name in hexadecimal ("9C9B" is 40091). Missing ones count as 0.
std::int32_t Hex4ToLong(std::string_view text);

/// The bytes that a run of digits names, two each; a digit left over at the end stands for both digits of a byte.
std::vector<std::uint8_t> hexRunBytes(std::string_view text);

/// Appends two upper-case hexadecimal digits for each byte, nothing between them.
void appendHexRun(std::string& text, std::span<const std::uint8_t> bytes);

/// `number` in upper-case hexadecimal, with zeros in front up to `width` digits.
std::string hexNumber(std::uint32_t number, std::size_t width = 1);

} // namespace ovisto
