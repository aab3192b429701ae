// SPDX-License-Identifier: MIT

#include "document/ValueWords.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace ovisto {

namespace {

/// The number rounded to so many decimals, which may all be zero.
std::string fixedText(double number, int decimals)
{
    constexpr std::size_t kLongest = 400; // of the largest number
    std::array<char, kLongest> text{};
    auto* const end =
        std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed, decimals).ptr;
    return {text.data(), end};
}

std::string withoutZeros(std::string text)
{
    if (text.find('.') == std::string::npos)
        return text;
    text.erase(text.find_last_not_of('0') + 1);
    if (text.ends_with('.'))
        text.pop_back();
    return text;
}

/// A comma before each three digits of the whole number in front.
std::string grouped(std::string text)
{
    constexpr std::size_t kDigits = 3;
    const std::size_t first = text.starts_with('-') ? 1 : 0;
    std::size_t place = std::min(text.find('.'), text.size());
    while (place > first + kDigits) {
        place -= kDigits;
        text.insert(place, 1, ',');
    }
    return text;
}

/// A whole number, or one with decimals, whose whole part has at least `digits`.
std::string padded(const std::string& number, std::size_t digits)
{
    const std::size_t whole = std::min(number.find('.'), number.size());
    return std::string(digits > whole ? digits - whole : 0, '0') + number;
}

} // namespace

std::string ValueWords::number(double number, int decimals) const
{
    const std::string text = grouped(withoutZeros(fixedText(number, decimals)));
    return text == "-0" ? "0" : text;
}

std::string ValueWords::moment(const Moment& moment) const
{
    std::string text;
    if (moment.date) {
        text += padded(std::to_string(static_cast<int>(moment.date->year())), 4) + "-" +
                padded(std::to_string(static_cast<unsigned>(moment.date->month())), 2) + "-" +
                padded(std::to_string(static_cast<unsigned>(moment.date->day())), 2);
    }
    if (moment.time) {
        text += (text.empty() ? "" : " ") + padded(std::to_string(moment.time->hour), 2) + ":" +
                padded(std::to_string(moment.time->minute), 2) + ":" +
                padded(withoutZeros(fixedText(moment.time->second, 3)), 2);
    }
    return text;
}

std::string ValueWords::phrase(const Phrase& phrase) const
{
    return inEnglish(phrase);
}

std::string ValueWords::reportWords(const std::string& text) const
{
    return text;
}

std::string ValueWords::reportCount(std::int64_t count, const std::string& one, const std::string& many) const
{
    std::string text = count == 1 ? one : many;
    if (const auto place = text.find("%n"); place != std::string::npos)
        text.replace(place, 2, std::to_string(count));
    return text;
}

const ValueWords& englishValueWords()
{
    static const ValueWords words;
    return words;
}

} // namespace ovisto
