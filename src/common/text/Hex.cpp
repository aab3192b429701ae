// SPDX-License-Identifier: MIT

#include "common/text/Hex.h"

#include <array>

namespace ovisto {

namespace {

constexpr std::string_view kDigits = "0123456789ABCDEF";

/// The two digits of every byte, so that long runs cost one look-up a byte.
constexpr auto kBytePairs = [] {
    std::array<std::array<char, 2>, 256> pairs{};
    for (std::size_t byte = 0; byte < pairs.size(); ++byte)
        pairs[byte] = {kDigits[byte / 16], kDigits[byte % 16]};
    return pairs;
}();

constexpr auto kDigitValues = [] {
    std::array<std::uint8_t, 256> values{};
    for (std::uint8_t value = 0; value < 16; ++value) {
        const char digit = kDigits[value];
        values[static_cast<std::uint8_t>(digit)] = value;
        if (digit >= 'A')
            values[static_cast<std::uint8_t>(digit - 'A' + 'a')] = value;
    }
    return values;
}();

} // namespace

std::uint8_t HexDigit(char digit)
{
    return kDigitValues[static_cast<std::uint8_t>(digit)];
}

std::uint8_t HexToByte(std::string_view text)
{
    return static_cast<std::uint8_t>(16 * HexDigit(text.front()) + HexDigit(text.back()));
}

std::int32_t Hex4ToLong(std::string_view text)
{
    std::int32_t number = 0;
    for (std::size_t i = 0; i < 4; ++i)
        number = 16 * number + (i < text.size() ? HexDigit(text[i]) : 0);
    return number;
}

std::vector<std::uint8_t> hexRunBytes(std::string_view text)
{
    std::vector<std::uint8_t> bytes((text.size() + 1) / 2);
    const std::size_t pairs = text.size() / 2;
    for (std::size_t i = 0; i < pairs; ++i) {
        const auto high = static_cast<std::uint8_t>(text[2 * i]);
        const auto low = static_cast<std::uint8_t>(text[2 * i + 1]);
        bytes[i] = static_cast<std::uint8_t>(16 * kDigitValues[high] + kDigitValues[low]);
    }
    if (pairs < bytes.size())
        bytes.back() = HexToByte(text.substr(2 * pairs));
    return bytes;
}

void appendHexRun(std::string& text, std::span<const std::uint8_t> bytes)
{
    const std::size_t start = text.size();
    text.resize(start + 2 * bytes.size());
    char* out = text.data() + start;
    for (const std::uint8_t byte : bytes) {
        *out++ = kBytePairs[byte][0];
        *out++ = kBytePairs[byte][1];
    }
}

std::string hexNumber(std::uint32_t number, std::size_t width)
{
    while (width < 2 * sizeof(number) && number >> (4 * width) != 0)
        ++width;
    std::string text(width, kDigits.front());
    for (auto digit = text.rbegin(); number != 0; ++digit) {
        *digit = kDigits[number % 16];
        number /= 16;
    }
    return text;
}

} // namespace ovisto
