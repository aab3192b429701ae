// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace ovisto {

/// The value of a hexadecimal digit of either case; 0 for any other character.
std::uint8_t HexDigit(char digit);

/// The byte with the hexadecimal digits that are the first and the last character of `text`. A single character counts
/// as both; `text` must not be empty.
std::uint8_t HexToByte(std::string_view text);

/// The first four characters of `text` read as a hexadecimal number ("9C9B" is 40091). Missing characters count as 0.
std::int32_t Hex4ToLong(std::string_view text);

/// The bytes of a run of hexadecimal digits, two each. A single digit at the end counts as both digits of a byte.
std::vector<std::uint8_t> hexRunBytes(std::string_view text);

/// Appends two upper-case hexadecimal digits for each byte, without separators.
void appendHexRun(std::string& text, std::span<const std::uint8_t> bytes);

/// `number` in upper-case hexadecimal, padded with zeros to `width` digits.
std::string hexNumber(std::uint32_t number, std::size_t width = 1);

} // namespace ovisto
