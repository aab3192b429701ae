// SPDX-License-Identifier: MIT

#include "common/text/CodePage.h"

#include "common/text/Unicode.h"

#include <algorithm>
#include <array>

namespace ovisto {

namespace {

/// The characters of the bytes 128 to 159 (Windows-1252); all others have the number of their byte.
constexpr std::array<char32_t, 32> kUpperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};
constexpr std::uint8_t kFirstUpperControl = 128;

constexpr bool isControl(std::uint8_t byte)
{
    return byte < 32 && byte != '\t' && byte != '\n' && byte != '\r';
}

/// Bytes that are the same in UTF-8 and never dropped.
constexpr bool isPlain(std::uint8_t byte)
{
    return byte < 128 && !isControl(byte);
}

} // namespace

char32_t codePageCharacter(std::uint8_t byte)
{
    const std::size_t index = byte - std::size_t{kFirstUpperControl};
    return index < kUpperControls.size() ? kUpperControls[index] : byte;
}

std::uint8_t codePageByte(char32_t character)
{
    if (character < 256)
        return static_cast<std::uint8_t>(character);
    const auto* found = std::ranges::find(kUpperControls, character);
    if (found == kUpperControls.end())
        return '?';
    return static_cast<std::uint8_t>(kFirstUpperControl + (found - kUpperControls.begin()));
}

std::vector<std::uint8_t> codePageBytes(std::string_view text)
{
    const std::u32string decoded = characters(text);
    std::vector<std::uint8_t> bytes(decoded.size());
    std::ranges::transform(decoded, bytes.begin(), codePageByte);
    return bytes;
}

void appendCharacters(std::string& text, std::span<const std::uint8_t> bytes, ControlBytes controlBytes)
{
    while (!bytes.empty()) {
        const auto plainEnd = std::ranges::find_if_not(bytes, isPlain);
        const auto plainSize = static_cast<std::size_t>(plainEnd - bytes.begin());
        text.append(reinterpret_cast<const char*>(bytes.data()), plainSize);
        bytes = bytes.subspan(plainSize);
        if (bytes.empty())
            break;
        if (controlBytes == ControlBytes::Keep || !isControl(bytes.front()))
            appendCharacter(text, codePageCharacter(bytes.front()));
        bytes = bytes.subspan(1);
    }
}

std::string decodedText(std::string_view bytes)
{
    if (isUtf8(bytes))
        return std::string(bytes);
    std::string text;
    appendCharacters(text, {reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()}, ControlBytes::Keep);
    return text;
}

} // namespace ovisto
