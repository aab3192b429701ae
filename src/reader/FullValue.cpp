// SPDX-License-Identifier: MIT

#include "reader/FullValue.h"

#include "common/text/Hex.h"
#include "document/DataType.h"
#include "document/StoredText.h"
#include "document/TagNumbers.h"
#include "document/XmlText.h"

#include <array>
#include <bit>
#include <charconv>
#include <cstdint>
#include <span>
#include <vector>

namespace ovisto {

namespace {

using Bytes = std::span<const std::uint8_t>;

/// The bytes of the value; what the file does not have is zero.
std::vector<std::uint8_t> valueBytes(ByteReader& reader, const IfdEntry& entry, std::int64_t size)
{
    const std::int64_t length = size * entry.count;
    const bool isInside = length <= kValueFieldSize;
    const FilePos position =
        isInside ? entry.valueField() : filePos(entry.base, TiffOffset{reader.ReadLong(entry.valueField())});
    std::vector<std::uint8_t> bytes = reader.readBytes(position, length);
    bytes.resize(static_cast<std::size_t>(length));
    return bytes;
}

std::uint64_t unsignedNumber(Bytes bytes, bool littleEndian)
{
    std::uint64_t number = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i)
        number = 256 * number + bytes[littleEndian ? bytes.size() - 1 - i : i];
    return number;
}

/// The number in two's complement.
std::int64_t signedNumber(Bytes bytes, bool littleEndian)
{
    const auto number = static_cast<std::int64_t>(unsignedNumber(bytes, littleEndian));
    const std::int64_t range = std::int64_t{1} << (8 * bytes.size());
    return number < range / 2 ? number : number - range;
}

std::string integerText(Bytes bytes, bool isSigned, bool littleEndian)
{
    return isSigned ? std::to_string(signedNumber(bytes, littleEndian))
                    : std::to_string(unsignedNumber(bytes, littleEndian));
}

/// The shortest decimal that reads back as the same number.
template <class Number> std::string shortestText(Number number)
{
    std::array<char, 64> text{};
    return {text.data(), std::to_chars(text.data(), text.data() + text.size(), number).ptr};
}

std::string realText(Bytes bytes, bool littleEndian)
{
    const std::uint64_t number = unsignedNumber(bytes, littleEndian);
    return bytes.size() == sizeof(float) ? shortestText(std::bit_cast<float>(static_cast<std::uint32_t>(number)))
                                         : shortestText(std::bit_cast<double>(number));
}

std::string numberText(const DataType& type, Bytes bytes, bool littleEndian)
{
    const bool isSigned = type.number == kSignedShort || type.number == kSignedLong || type.number == kSignedRational;
    switch (type.form) {
    case ValueForm::Real:
        return realText(bytes, littleEndian);
    case ValueForm::Rational: {
        const std::size_t half = bytes.size() / 2;
        return integerText(bytes.first(half), isSigned, littleEndian) + "/" +
               integerText(bytes.subspan(half), isSigned, littleEndian);
    }
    default:
        return integerText(bytes, isSigned, littleEndian);
    }
}

/// All numbers of the value, with commas between them.
std::string numberList(ByteReader& reader, const IfdEntry& entry, const DataType& type)
{
    const auto bytes = valueBytes(reader, entry, type.size);
    const auto size = static_cast<std::size_t>(type.size);
    std::string text;
    for (std::size_t i = 0; i < bytes.size(); i += size) {
        if (i > 0)
            text += ',';
        text += numberText(type, Bytes(bytes).subspan(i, size), reader.littleEndian);
    }
    return text;
}

EntryValue textOrDigits(ByteReader& reader, const IfdEntry& entry)
{
    const auto bytes = valueBytes(reader, entry, 1);
    if (const auto text = storedText(entry.tag, entry.format, bytes, reader.littleEndian)) {
        const int dataType = isWindowsText(entry.tag) && entry.format != kString ? kUnicodeString : entry.format;
        return {dataType, escapedText(shownText(*text, bytes))};
    }
    const bool isNamedBytes = entry.format == kUndefined && isFourByteTag(entry.tag);
    std::string digits;
    appendHexRun(digits, bytes);
    return {entry.format == kUndefined && !isNamedBytes ? kByte : entry.format, std::move(digits)};
}

EntryValue fullValue(ByteReader& reader, const IfdEntry& entry)
{
    // A text of Windows cannot be of type Float, whose number it has in documents.
    const bool isOtherFloat = entry.format == kFloat && isWindowsText(entry.tag);
    const DataType* type = isOtherFloat ? nullptr : findFullDataType(entry.format, entry.tag);
    if (type == nullptr)
        return {entry.format, {}};
    if (entry.format == kUndefined && entry.tag == kMakerNote)
        return {entry.format, std::to_string(reader.ReadLong(entry.valueField()))};
    if (type->size == 1)
        return textOrDigits(reader, entry);
    return {entry.format, numberList(reader, entry, *type)};
}

} // namespace

void readFullEntryValue(ByteReader& reader, const IfdEntry& entry, EntryValue& value)
{
    value.dataType = entry.format; // which stays when there is an error
    value = fullValue(reader, entry);
}

} // namespace ovisto
