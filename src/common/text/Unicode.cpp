// SPDX-License-Identifier: MIT

#include "common/text/Unicode.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <utf8.h>

namespace ovisto {

namespace {

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

void appendCharacter(std::string& text, char32_t character)
{
    if (character < 128)
        text.push_back(static_cast<char>(character));
    else
        utf8::unchecked::append(character, std::back_inserter(text));
}

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
    forEachStretch(
        text, [&](std::string_view ascii) { units.append(ascii.begin(), ascii.end()); },
        [&](std::string_view other) {
            const std::string valid = utf8::replace_invalid(other, U'?');
            utf8::utf8to16(valid.begin(), valid.end(), std::back_inserter(units));
        });
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
