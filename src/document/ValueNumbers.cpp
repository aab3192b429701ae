// SPDX-License-Identifier: MIT

#include "document/ValueNumbers.h"

#include "common/text/Hex.h"
#include "common/text/NumberText.h"
#include "common/text/Splitting.h"

#include <charconv>
#include <limits>

namespace ovisto {

namespace {

constexpr std::int64_t kAllBits = std::numeric_limits<std::uint32_t>::max();
constexpr double kMostCertain = std::numeric_limits<std::int32_t>::max();

/// A number without a stroke. A basic document reads negative numbers as large ones, and shortens those.
std::optional<double> operand(std::string_view text)
{
    if (const auto whole = wholeNumber(text))
        return static_cast<double>(*whole);
    if (text.find_first_not_of("0123456789.eE+-") != std::string_view::npos)
        return std::nullopt; // words for infinity are numbers to from_chars
    double number = 0;
    const auto [end, status] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isNumber = status == std::errc() && end == text.data() + text.size() && number <= kMostCertain;
    return isNumber ? std::optional(number) : std::nullopt;
}

} // namespace

std::optional<std::int64_t> wholeNumber(std::string_view text)
{
    std::int64_t number = 0;
    const auto [end, status] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool isNumber = status == std::errc() && end == text.data() + text.size();
    return isNumber ? std::optional(number) : std::nullopt;
}

std::optional<double> numberOf(std::string_view text)
{
    const std::size_t stroke = text.find('/');
    const auto numerator = operand(text.substr(0, stroke));
    if (stroke == std::string_view::npos || !numerator)
        return numerator;
    const auto denominator = operand(text.substr(stroke + 1));
    return denominator && *denominator != 0 ? std::optional(*numerator / *denominator) : std::nullopt;
}

std::optional<std::vector<std::optional<double>>> numbersOf(std::string_view text, std::size_t count)
{
    const std::vector<std::string_view> pieces = split(text, ',');
    if (pieces.size() != count)
        return std::nullopt;
    std::vector<std::optional<double>> numbers;
    numbers.reserve(count);
    for (const std::string_view piece : pieces)
        numbers.push_back(numberOf(piece));
    return numbers;
}

bool isInfinite(std::string_view text)
{
    const std::size_t stroke = text.find('/');
    const std::string_view numerator = text.substr(0, stroke);
    return stroke != std::string_view::npos &&
           (wholeNumber(numerator) == kAllBits || numerator == numberText(kAllBits));
}

std::optional<std::vector<std::uint8_t>> digitBytes(std::string_view text)
{
    const bool isDigits = text.find_first_not_of("0123456789ABCDEFabcdef") == std::string_view::npos;
    return isDigits && text.size() % 2 == 0 && !text.empty() ? std::optional(hexRunBytes(text)) : std::nullopt;
}

} // namespace ovisto
