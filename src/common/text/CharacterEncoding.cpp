// SPDX-License-Identifier: MIT

#include "common/text/CharacterEncoding.h"

#include "common/text/CodePage.h"
#include "common/text/Unicode.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <memory>

#include <iconv.h>
#include <utf8.h>

namespace ovisto {

namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr std::size_t kUnitSize = 2;

constexpr bool isHighSurrogate(char32_t unit)
{
    return unit >= 0xD800 && unit <= 0xDBFF;
}

constexpr bool isLowSurrogate(char32_t unit)
{
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

void appendCodePage(std::vector<StoredCharacter>& characters, std::span<const std::uint8_t> bytes)
{
    for (const std::uint8_t byte : bytes)
        characters.push_back({xmlCharacter(codePageCharacter(byte)), 1});
}

void appendUtf8(std::vector<StoredCharacter>& characters, std::span<const std::uint8_t> bytes)
{
    for (auto next = bytes.begin(); next != bytes.end();) {
        const auto validEnd = utf8::find_invalid(next, bytes.end());
        while (next != validEnd) {
            const auto start = next;
            const char32_t character = utf8::unchecked::next(next);
            characters.push_back({xmlCharacter(character), static_cast<std::size_t>(next - start)});
        }
        if (next != bytes.end()) {
            characters.push_back({kReplacement, 1});
            ++next;
        }
    }
}

char32_t unitAt(std::span<const std::uint8_t> bytes, std::size_t index, CharacterEncoding order)
{
    const std::uint8_t first = bytes[index];
    const std::uint8_t second = bytes[index + 1];
    return order == CharacterEncoding::Utf16LittleEndian ? first + 256U * second : 256U * first + second;
}

void appendUtf16(std::vector<StoredCharacter>& characters, std::span<const std::uint8_t> bytes, CharacterEncoding order)
{
    std::size_t index = 0;
    for (; index + kUnitSize <= bytes.size(); index += kUnitSize) {
        const char32_t unit = unitAt(bytes, index, order);
        const bool hasPair = isHighSurrogate(unit) && index + 2 * kUnitSize <= bytes.size();
        const char32_t next = hasPair ? unitAt(bytes, index + kUnitSize, order) : 0;
        if (isLowSurrogate(next)) {
            characters.push_back({0x10000 + ((unit - 0xD800) << 10U) + (next - 0xDC00), 2 * kUnitSize});
            index += kUnitSize;
        } else {
            characters.push_back({xmlCharacter(unit), kUnitSize});
        }
    }
    if (index < bytes.size())
        characters.push_back({kReplacement, bytes.size() - index});
}

/// A conversion by the C library; closes itself.
class Conversion {
public:
    Conversion(const char* to, const char* from) : m_handle(iconv_open(to, from)) {}
    Conversion(const Conversion&) = delete;
    Conversion& operator=(const Conversion&) = delete;
    ~Conversion()
    {
        if (isOpen())
            iconv_close(m_handle);
    }

    bool isOpen() const { return reinterpret_cast<std::intptr_t>(m_handle) != -1; }

    /// Appends what `rest` says to `text` and takes it away from there, as far as it can be converted.
    void append(std::string& text, std::string_view& rest)
    {
        std::array<char, 1024> buffer{};
        std::size_t done = 0;
        do {
            char* next = const_cast<char*>(rest.data()); // which iconv only reads
            char* end = buffer.data();
            std::size_t left = rest.size();
            std::size_t room = buffer.size();
            iconv(m_handle, &next, &left, &end, &room);
            text.append(buffer.data(), end);
            done = rest.size() - left;
            rest.remove_prefix(done);
        } while (done > 0 && !rest.empty());
    }

private:
    iconv_t m_handle;
};

std::string jisText(std::span<const std::uint8_t> bytes)
{
    constexpr std::string_view kToJis = "\x1B$B"; // the escape sequence that announces JIS X 0208
    std::string input(bytes.begin(), bytes.end());
    if (input.find(kToJis.front()) == std::string::npos)
        input.insert(0, kToJis);
    std::string text;
    Conversion conversion("UTF-8", "ISO-2022-JP");
    std::string_view rest(input);
    while (conversion.isOpen() && !rest.empty()) {
        conversion.append(text, rest);
        if (rest.empty())
            break;
        appendCharacter(text, kReplacement); // a byte that says nothing
        rest.remove_prefix(1);
    }
    return text;
}

/// The unit as two bytes.
void appendUnit(std::vector<std::uint8_t>& bytes, char32_t unit, CharacterEncoding order)
{
    const auto low = static_cast<std::uint8_t>(unit & 0xFFU);
    const auto high = static_cast<std::uint8_t>(unit >> 8U);
    if (order == CharacterEncoding::Utf16LittleEndian)
        bytes.insert(bytes.end(), {low, high});
    else
        bytes.insert(bytes.end(), {high, low});
}

void appendEncoded(std::vector<std::uint8_t>& bytes, char32_t character, CharacterEncoding order)
{
    constexpr char32_t kFirstOfPairs = 0x10000;
    if (character < kFirstOfPairs)
        return appendUnit(bytes, character, order);
    appendUnit(bytes, 0xD800 + ((character - kFirstOfPairs) >> 10U), order);
    appendUnit(bytes, 0xDC00 + ((character - kFirstOfPairs) & 0x3FFU), order);
}

} // namespace

std::vector<StoredCharacter> storedCharacters(std::span<const std::uint8_t> bytes, CharacterEncoding encoding)
{
    std::vector<StoredCharacter> characters;
    characters.reserve(bytes.size());
    switch (encoding) {
    case CharacterEncoding::CodePage:
        appendCodePage(characters, bytes);
        break;
    case CharacterEncoding::Utf8:
        appendUtf8(characters, bytes);
        break;
    case CharacterEncoding::Utf16LittleEndian:
    case CharacterEncoding::Utf16BigEndian:
        appendUtf16(characters, bytes, encoding);
        break;
    case CharacterEncoding::Jis:
        break; // its bytes have no meaning without those before them
    }
    return characters;
}

std::string decodedText(std::span<const std::uint8_t> bytes, CharacterEncoding encoding)
{
    std::string text;
    if (encoding == CharacterEncoding::Jis) {
        forEachCharacter(jisText(bytes), [&](char32_t character) { appendCharacter(text, xmlCharacter(character)); });
        return text;
    }
    const auto isPlain = [](std::uint8_t byte) { return byte >= 32 && byte < 128; };
    const bool isNarrow = encoding == CharacterEncoding::CodePage || encoding == CharacterEncoding::Utf8;
    if (isNarrow && std::ranges::all_of(bytes, isPlain)) // as nearly all are
        return {bytes.begin(), bytes.end()};
    for (const StoredCharacter& stored : storedCharacters(bytes, encoding))
        appendCharacter(text, stored.character);
    return text;
}

std::optional<std::vector<std::uint8_t>> encodedText(std::u32string_view text, CharacterEncoding encoding)
{
    std::vector<std::uint8_t> bytes;
    for (const char32_t character : text) {
        switch (encoding) {
        case CharacterEncoding::CodePage: {
            const std::uint8_t byte = codePageByte(character);
            if (xmlCharacter(codePageCharacter(byte)) != character)
                return std::nullopt;
            bytes.push_back(byte);
            break;
        }
        case CharacterEncoding::Utf8:
            utf8::unchecked::append(character, std::back_inserter(bytes));
            break;
        case CharacterEncoding::Utf16LittleEndian:
        case CharacterEncoding::Utf16BigEndian:
            appendEncoded(bytes, character, encoding);
            break;
        case CharacterEncoding::Jis:
            return std::nullopt;
        }
    }
    return bytes;
}

CharacterEncoding narrowEncoding(std::span<const std::uint8_t> bytes)
{
    const bool isAscii = std::ranges::all_of(bytes, [](std::uint8_t byte) { return byte < 128; });
    const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    return !isAscii && isUtf8(text) ? CharacterEncoding::Utf8 : CharacterEncoding::CodePage;
}

std::size_t unitsInOrder(std::span<const std::uint8_t> units, CharacterEncoding order)
{
    constexpr char32_t kFirstWithHighByte = 256;
    std::size_t count = 0;
    for (const StoredCharacter& stored : storedCharacters(units, order)) {
        if (stored.character < kFirstWithHighByte || stored.size > kUnitSize)
            count += stored.size / kUnitSize;
    }
    return count;
}

} // namespace ovisto
