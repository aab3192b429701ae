#include "common/CodePage.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utf8.h>

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

void appendCharacter(std::string& text, char32_t character)
{
    if (character < 128)
        text.push_back(static_cast<char>(character));
    else
        utf8::unchecked::append(character, std::back_inserter(text));
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

bool isUtf8(std::string_view text)
{
    return utf8::is_valid(text.begin(), text.end());
}

void forEachCharacter(std::string_view text, const std::function<void(char32_t)>& use)
{
    if (!isUtf8(text))
        return forEachCharacter(utf8::replace_invalid(text, U'?'), use);
    for (const auto* next = text.begin(); next != text.end();)
        use(utf8::unchecked::next(next));
}

std::u32string characters(std::string_view text)
{
    std::u32string decoded;
    forEachCharacter(text, [&](char32_t character) { decoded.push_back(character); });
    return decoded;
}

std::size_t characterCount(std::string_view text)
{
    if (!isUtf8(text))
        return characters(text).size();
    return static_cast<std::size_t>(utf8::unchecked::distance(text.begin(), text.end()));
}

std::u16string utf16(std::string_view text)
{
    std::u16string units;
    for (const char32_t character : characters(text)) {
        if (character > 0xFFFF) {
            units.push_back(static_cast<char16_t>(0xD7C0 + (character >> 10)));
            units.push_back(static_cast<char16_t>(0xDC00 + (character & 0x3FF)));
        } else {
            units.push_back(static_cast<char16_t>(character));
        }
    }
    return units;
}

std::string utf16Bytes(std::string_view text)
{
    std::string bytes;
    bytes.reserve(2 * text.size());
    const auto append = [&](char16_t unit) {
        bytes.push_back(static_cast<char>(unit & 0xFF));
        bytes.push_back(static_cast<char>(unit >> 8));
    };
    while (!text.empty()) {
        // Documents are hardly anything but ASCII.
        const auto* plainEnd = std::ranges::find_if(text, [](char character) { return (character & 0x80) != 0; });
        const auto plainSize = static_cast<std::size_t>(plainEnd - text.begin());
        for (const char character : text.substr(0, plainSize))
            append(static_cast<char16_t>(character));
        text.remove_prefix(plainSize);
        const auto* otherEnd = std::ranges::find_if(text, [](char character) { return (character & 0x80) == 0; });
        const auto otherSize = static_cast<std::size_t>(otherEnd - text.begin());
        std::ranges::for_each(utf16(text.substr(0, otherSize)), append);
        text.remove_prefix(otherSize);
    }
    return bytes;
}

} // namespace ovisto
