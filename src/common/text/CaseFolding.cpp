// SPDX-License-Identifier: MIT

#include "common/text/CaseFolding.h"

#include "common/text/Unicode.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <unicase.h>
#include <uninorm.h>

namespace ovisto {

namespace {

struct Free {
    void operator()(std::uint8_t* text) const { std::free(text); } // NOLINT(*-no-malloc): made by the library
};

const std::uint8_t* unitsOf(std::string_view text)
{
    return reinterpret_cast<const std::uint8_t*>(text.data());
}

/// What the library made of `text`, or `text` if it made nothing.
std::string textOf(std::uint8_t* made, std::size_t size, std::string_view text)
{
    const std::unique_ptr<std::uint8_t, Free> owner(made);
    return made != nullptr ? std::string(reinterpret_cast<const char*>(made), size) : std::string(text);
}

std::string foldedStretch(std::string_view text)
{
    std::size_t size = 0;
    std::uint8_t* folded = u8_casefold(unitsOf(text), text.size(), nullptr, UNINORM_NFC, nullptr, &size);
    return textOf(folded, size, text);
}

/// Where the next character of ASCII stands, or the end.
std::size_t stretchEnd(std::string_view text, std::size_t place)
{
    while (place < text.size() && (text[place] & 0x80) != 0)
        ++place;
    return place;
}

} // namespace

std::u32string foldedCase(std::string_view text)
{
    constexpr char32_t kFirstToCompose = 0x300; // those below are letters of their own
    std::u32string folded = characters(text);
    if (std::ranges::any_of(folded, [](char32_t character) { return character >= kFirstToCompose; }))
        folded = characters(composedText(text));
    for (char32_t& character : folded) {
        if (character >= U'A' && character <= U'Z')
            character += U'a' - U'A';
        else if (character >= 128)
            character = uc_tolower(uc_toupper(character)); // both, as some capitals have two small letters
    }
    return folded;
}

std::string foldedText(std::string text)
{
    const std::string_view whole = text;
    std::size_t first = asciiPrefix(whole);
    if (first == whole.size())
        return text;
    std::string folded;
    for (std::size_t copied = 0; copied < whole.size(); first = copied + asciiPrefix(whole.substr(copied))) {
        // Marks may belong to the letter in front.
        const std::size_t start = first > copied && first < whole.size() ? first - 1 : first;
        const std::size_t end = stretchEnd(whole, first);
        folded.append(whole, copied, start - copied);
        if (start < end)
            folded += foldedStretch(whole.substr(start, end - start));
        copied = end;
    }
    return folded;
}

std::string composedText(std::string_view text)
{
    std::size_t size = 0;
    std::uint8_t* composed = u8_normalize(UNINORM_NFC, unitsOf(text), text.size(), nullptr, &size);
    return textOf(composed, size, text);
}

} // namespace ovisto
