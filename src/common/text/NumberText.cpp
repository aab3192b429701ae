// SPDX-License-Identifier: MIT

#include "common/text/NumberText.h"

#include "common/Error.h"
#include "common/text/Splitting.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

namespace ovisto {

namespace {

constexpr std::int64_t kExponentForm = 10'000'000; // the first number with more than 7 digits

/// The number in `text`, infinite when it is too large for a double.
double toDouble(std::string_view text)
{
    text = trimmed(text);
    if (text.starts_with('+') && !text.starts_with("+-"))
        text.remove_prefix(1);
    // Words for infinity are numbers to from_chars, but not here.
    if (text.find_first_not_of("0123456789.eE+-") != std::string_view::npos)
        throw systemError(kTypeMismatch);
    double number = 0;
    const auto [end, status] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (status == std::errc::result_out_of_range) {
        const bool isTiny = text.find("e-") != std::string_view::npos || text.find("E-") != std::string_view::npos;
        return isTiny ? 0 : std::numeric_limits<double>::infinity();
    }
    if (status != std::errc() || end != text.data() + text.size())
        throw systemError(kTypeMismatch);
    return number;
}

} // namespace

std::string numberText(std::int64_t number)
{
    if (-kExponentForm < number && number < kExponentForm)
        return std::to_string(number);
    constexpr int kDigits = 7;
    std::array<char, 32> text{};
    auto* const end =
        std::to_chars(text.begin(), text.end(), static_cast<float>(number), std::chars_format::general, kDigits).ptr;
    std::replace(text.begin(), end, 'e', 'E');
    return {text.begin(), end};
}

std::int32_t toLong(std::string_view text)
{
    std::int32_t number = 0;
    const auto [end, status] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (status == std::errc() && end == text.data() + text.size())
        return number; // as nearly all are
    const double rounded = std::nearbyint(toDouble(text));
    if (rounded < std::numeric_limits<std::int32_t>::min() || rounded > std::numeric_limits<std::int32_t>::max())
        throw systemError(kOverflow);
    return static_cast<std::int32_t>(rounded);
}

std::int32_t attributeToLong(std::string_view text)
{
    const bool startsWithDigit = !text.empty() && text.front() >= '0' && text.front() <= '9';
    return startsWithDigit ? toLong(text) : toLong("0" + std::string(text));
}

std::int64_t halfToEven(std::int64_t number)
{
    const std::int64_t half = number / 2;
    return number % 2 != 0 && half % 2 != 0 ? half + 1 : half;
}

} // namespace ovisto
