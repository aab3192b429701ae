#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ovisto {

/// `number` as the document writes it: as a single-precision number with at most 7 significant digits, in exponent
/// form ("1.234568E+07") from 10,000,000 on.
std::string numberText(std::int64_t number);

/// The whole number nearest to what `text` says, halves to the even one. Blanks around it, a sign, decimals and an
/// exponent are allowed. Raises kTypeMismatch when it is not a number, kOverflow when it needs more than 32 bits
/// signed.
std::int32_t toLong(std::string_view text);

/// toLong() of an attribute's text with "0" put in front of it: an absent attribute is 0.
std::int32_t attributeToLong(std::string_view text);

/// Half of `number`, a half to the even neighbour: the bytes of a hexadecimal text of `number` digits.
std::int64_t halfToEven(std::int64_t number);

} // namespace ovisto
