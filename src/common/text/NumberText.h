// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace ovisto {

/// `number` as the document writes it: rounded to single precision, with at most 7 significant digits, and in exponent
/// form ("1.234568E+07") from 10,000,000 on.
std::string numberText(std::int64_t number);

/// The whole number nearest to `text`; halves go to the even one. Blanks around it, a sign, decimals and an exponent
/// are allowed. Raises kTypeMismatch if it is not a number, kOverflow if it does not fit into 32 bits, signed.
std::int32_t toLong(std::string_view text);

/// toLong() of an attribute's text with "0" put in front of it: an absent attribute is 0.
std::int32_t attributeToLong(std::string_view text);

/// Half of `number`, rounded to even: how many bytes a text of `number` hexadecimal digits counts as.
std::int64_t halfToEven(std::int64_t number);

} // namespace ovisto
