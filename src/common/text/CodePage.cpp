#include "common/text/CodePage.h"

#include <algorithm>
#include <array>
#include <cstring>
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

/// How many bytes in front are ASCII, as nearly all are: each of them is a character, and much is simple then.
std::size_t asciiPrefix(std::string_view text)
{
    constexpr std::uint64_t kUpperBits = 0x8080808080808080;
    std::size_t size = 0;
    for (std::uint64_t eight = 0; size + sizeof(eight) <= text.size(); size += sizeof(eight)) {
        std::memcpy(&eight, text.data() + size, sizeof(eight));
        if ((eight & kUpperBits) != 0)
            break;
    }
    while (size < text.size() && (text[size] & 0x80) == 0)
        ++size;
    return size;
}

/// Hands over the text in its stretches of ASCII and of other characters, none of them empty. No character is divided,
/// as all bytes of those that are no ASCII are none either.
template <class Ascii, class Other> void forEachStretch(std::string_view text, Ascii ascii, Other other)
{
    while (!text.empty()) {
        const std::size_t asciiSize = asciiPrefix(text);
        if (asciiSize > 0)
            ascii(text.substr(0, asciiSize));
        text.remove_prefix(asciiSize);
        const auto* otherEnd = std::ranges::find_if(text, [](char byte) { return (byte & 0x80) == 0; });
        const auto otherSize = static_cast<std::size_t>(otherEnd - text.begin());
        if (otherSize > 0)
            other(text.substr(0, otherSize));
        text.remove_prefix(otherSize);
    }
}

void forEachOtherCharacter(std::string_view text, const std::function<void(char32_t)>& use)
{
    if (!utf8::is_valid(text.begin(), text.end()))
        return forEachOtherCharacter(utf8::replace_invalid(text, U'?'), use);
    for (const auto* next = text.begin(); next != text.end();)
        use(utf8::unchecked::next(next));
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
    std::vector<std::uint8_t> bytes;
    bytes.reserve(text.size());
    forEachStretch(
        text, [&](std::string_view ascii) { bytes.insert(bytes.end(), ascii.begin(), ascii.end()); },
        [&](std::string_view other) {
            forEachOtherCharacter(other, [&](char32_t character) { bytes.push_back(codePageByte(character)); });
        });
    return bytes;
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
    bool isValid = true;
    forEachStretch(
        text, [](std::string_view) {},
        [&](std::string_view other) { isValid = isValid && utf8::is_valid(other.begin(), other.end()); });
    return isValid;
}

void forEachCharacter(std::string_view text, const std::function<void(char32_t)>& use)
{
    forEachStretch(
        text, [&](std::string_view ascii) { std::ranges::for_each(ascii, use); },
        [&](std::string_view other) { forEachOtherCharacter(other, use); });
}

std::u32string characters(std::string_view text)
{
    std::u32string decoded;
    forEachStretch(
        text, [&](std::string_view ascii) { decoded.append(ascii.begin(), ascii.end()); },
        [&](std::string_view other) {
            forEachOtherCharacter(other, [&](char32_t character) { decoded.push_back(character); });
        });
    return decoded;
}

std::size_t characterCount(std::string_view text)
{
    std::size_t count = 0;
    forEachStretch(
        text, [&](std::string_view ascii) { count += ascii.size(); },
        [&](std::string_view other) { forEachOtherCharacter(other, [&](char32_t) { ++count; }); });
    return count;
}

std::u16string utf16(std::string_view text)
{
    std::u16string units;
    units.reserve(text.size());
    const auto append = [&](char32_t character) {
        if (character > 0xFFFF) {
            units.push_back(static_cast<char16_t>(0xD7C0 + (character >> 10)));
            units.push_back(static_cast<char16_t>(0xDC00 + (character & 0x3FF)));
        } else {
            units.push_back(static_cast<char16_t>(character));
        }
    };
    forEachStretch(
        text, [&](std::string_view ascii) { units.append(ascii.begin(), ascii.end()); },
        [&](std::string_view other) { forEachOtherCharacter(other, append); });
    return units;
}

std::string utf16Bytes(std::string_view text)
{
    std::string bytes;
    bytes.reserve(2 * text.size());
    for (const char16_t unit : utf16(text)) {
        bytes.push_back(static_cast<char>(unit & 0xFF));
        bytes.push_back(static_cast<char>(unit >> 8));
    }
    return bytes;
}

} // namespace ovisto
