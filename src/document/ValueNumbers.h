// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace ovisto {

// The numbers in the text of a value.

std::optional<std::int64_t> wholeNumber(std::string_view text);

/// A whole number, a decimal one, or a fraction of two. None for a denominator of zero, and for a number that a basic
/// document has shortened and that may have been negative.
std::optional<double> numberOf(std::string_view text);

/// The numbers between commas, `count` of them; a number that is none is an empty one. None if there are not as many.
std::optional<std::vector<std::optional<double>>> numbersOf(std::string_view text, std::size_t count);

/// Whether `text` is a fraction whose numerator has all its 32 bits set, which stands for infinity.
bool isInfinite(std::string_view text);

/// The bytes of an even number of hexadecimal digits; none for another text.
std::optional<std::vector<std::uint8_t>> digitBytes(std::string_view text);

} // namespace ovisto
