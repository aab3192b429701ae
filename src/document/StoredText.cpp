// SPDX-License-Identifier: MIT

#include "document/StoredText.h"

#include "document/DataType.h"
#include "document/TagNumbers.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace ovisto {

namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr CharacterCode kJisCode = {'J', 'I', 'S', 0, 0, 0, 0, 0};
constexpr CharacterCode kUndefinedCode = {};
constexpr std::size_t kUnitSize = 2;
constexpr auto kLittle = CharacterEncoding::Utf16LittleEndian;
constexpr auto kBig = CharacterEncoding::Utf16BigEndian;

CharacterEncoding otherOrder(CharacterEncoding order)
{
    return order == kLittle ? kBig : kLittle;
}

/// The order that a byte order mark in front names.
std::optional<CharacterEncoding> markedOrder(Bytes bytes)
{
    if (bytes.size() < kUnitSize)
        return std::nullopt;
    if (bytes[0] == 0xFF && bytes[1] == 0xFE)
        return kLittle;
    if (bytes[0] == 0xFE && bytes[1] == 0xFF)
        return kBig;
    return std::nullopt;
}

/// The bytes before the first unit of zero.
Bytes beforeZeroUnit(Bytes bytes)
{
    std::size_t size = 0;
    while (size + kUnitSize <= bytes.size() && (bytes[size] != 0 || bytes[size + 1] != 0))
        size += kUnitSize;
    return bytes.first(size);
}

Bytes beforeZero(Bytes bytes)
{
    return {bytes.begin(), std::ranges::find(bytes, 0)};
}

/// Wide text with an optional mark in front; `order` decides where there is none.
StoredText wideText(Bytes value, std::size_t first, CharacterEncoding (*order)(Bytes units, bool littleEndian),
                    bool littleEndian)
{
    const auto marked = markedOrder(value.subspan(first));
    first += marked ? kUnitSize : 0;
    const Bytes units = beforeZeroUnit(value.subspan(first));
    return {.encoding = marked ? *marked : order(units, littleEndian), .first = first, .size = units.size()};
}

/// Windows puts the least significant byte first, whatever the order of the block; not all programs know.
CharacterEncoding windowsOrder(Bytes units, bool /*littleEndian*/)
{
    return unitsInOrder(units, kBig) > unitsInOrder(units, kLittle) ? kBig : kLittle;
}

/// A comment has the order of the block, unless most of its units look right in the other one, and fewer in this.
CharacterEncoding commentOrder(Bytes units, bool littleEndian)
{
    const CharacterEncoding order = littleEndian ? kLittle : kBig;
    const std::size_t inOther = unitsInOrder(units, otherOrder(order));
    const bool isWrong = inOther > unitsInOrder(units, order) && inOther * kUnitSize * 2 >= units.size();
    return isWrong ? otherOrder(order) : order;
}

/// How many bytes are left without the blanks at the end.
std::size_t sizeWithoutPadding(Bytes text, CharacterEncoding encoding)
{
    const auto blank = *encodedText(U" ", encoding == CharacterEncoding::Jis ? CharacterEncoding::CodePage : encoding);
    while (text.size() >= blank.size() && std::ranges::equal(text.last(blank.size()), blank))
        text = text.first(text.size() - blank.size());
    return text.size();
}

StoredText comment(Bytes value, const CharacterCode& code, bool littleEndian)
{
    StoredText text;
    if (code == kUnicodeCode) {
        text = wideText(value, kCharacterCodeSize, commentOrder, littleEndian);
    } else {
        const Bytes bytes = beforeZero(value.subspan(kCharacterCodeSize));
        const auto encoding = code == kJisCode ? CharacterEncoding::Jis : narrowEncoding(bytes);
        text = {.encoding = encoding, .first = kCharacterCodeSize, .size = bytes.size()};
    }
    text.size = sizeWithoutPadding(bytesOf(text, value), text.encoding);
    text.hasCode = true;
    return text;
}

/// The character code in front of the value, if there is one. Zeros mean an unknown encoding only where a code has to
/// be.
std::optional<CharacterCode> codeOf(int tag, Bytes value)
{
    if (value.size() < kCharacterCodeSize)
        return std::nullopt;
    CharacterCode code{};
    std::copy_n(value.begin(), code.size(), code.begin());
    const bool isNamed = code == kAsciiCode || code == kUnicodeCode || code == kJisCode;
    return isNamed || (code == kUndefinedCode && hasCharacterCode(tag)) ? std::optional(code) : std::nullopt;
}

/// Bytes of unknown meaning are text unless there are control characters among them. A zero byte may end them.
std::optional<StoredText> rawText(Bytes value)
{
    if (value.size() > 1 && value.back() == 0)
        value = value.first(value.size() - 1);
    if (std::ranges::any_of(value, [](std::uint8_t byte) { return byte < ' '; }))
        return std::nullopt;
    return storedPayload(value);
}

} // namespace

bool hasCharacterCode(int tag)
{
    return tag == kUserComment || tag == kGpsProcessingMethod || tag == kGpsAreaInformation;
}

std::optional<StoredText> storedText(int tag, int fieldType, std::span<const std::uint8_t> bytes, bool littleEndian)
{
    const bool isBytes = fieldType == kByte || fieldType == kSignedByte || fieldType == kUndefined;
    if (isBytes && isWindowsText(tag))
        return wideText(bytes, 0, windowsOrder, littleEndian);
    if (fieldType == kString)
        return storedPayload(beforeZero(bytes));
    if (fieldType == kUtf8String)
        return StoredText{.encoding = CharacterEncoding::Utf8, .size = beforeZero(bytes).size()};
    if (fieldType != kUndefined || isFourByteTag(tag))
        return std::nullopt;
    const auto code = codeOf(tag, bytes);
    return code ? comment(bytes, *code, littleEndian) : rawText(bytes);
}

StoredText storedPayload(std::span<const std::uint8_t> bytes)
{
    return {.encoding = narrowEncoding(bytes), .size = bytes.size()};
}

std::span<const std::uint8_t> bytesOf(const StoredText& text, std::span<const std::uint8_t> value)
{
    return value.subspan(text.first, text.size);
}

std::string shownText(const StoredText& text, std::span<const std::uint8_t> value)
{
    return decodedText(bytesOf(text, value), text.encoding);
}

} // namespace ovisto
