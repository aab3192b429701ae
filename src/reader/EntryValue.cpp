#include "reader/EntryValue.h"

#include "common/text/NumberText.h"
#include "document/DataType.h"
#include "document/TagNumbers.h"
#include "document/XmlText.h"

#include <algorithm>
#include <iterator>

namespace ovisto {

namespace {

constexpr std::int64_t kFirstOutside = 5; // values of fewer bytes stand in the entry

TiffOffset valueOffset(ByteReader& reader, const IfdEntry& entry)
{
    return {reader.ReadLong(entry.valueField())};
}

FilePos valueAtOffset(ByteReader& reader, const IfdEntry& entry)
{
    return filePos(entry.base, valueOffset(reader, entry));
}

/// Where the bytes of a byte array or a text stand.
FilePos bytesOf(ByteReader& reader, const IfdEntry& entry)
{
    return entry.count < kFirstOutside ? entry.valueField() : valueAtOffset(reader, entry);
}

/// The characters of a text. A text in the entry may fill it; one outside ends with a zero byte, which is left out.
std::string textOf(ByteReader& reader, const IfdEntry& entry)
{
    const std::int64_t length = entry.count < kFirstOutside ? entry.count : std::int64_t{entry.count} - 1;
    return reader.ReadString(bytesOf(reader, entry), length);
}

/// The numbers of an array, `size` bytes each, as `number` renders the one at a place, with commas between them.
template <class Number>
std::string joined(ByteReader& reader, FilePos first, std::int64_t count, std::int64_t size, Number number)
{
    reader.checkLength(count * size);
    std::string text;
    for (std::int64_t i = 0; i < count; ++i) {
        if (i > 0)
            text += ',';
        text += number(first + i * size);
    }
    reader.charge(static_cast<std::int64_t>(text.size()));
    return text;
}

// The last byte of an array is left out; files that this program wrote are read by others with that in mind.
EntryValue byteValue(ByteReader& reader, const IfdEntry& entry)
{
    const FilePos bytes = bytesOf(reader, entry);
    if (isWindowsText(entry.tag))
        return {entryDataType(entry), XMLSanitize(reader.ReadUnicode(bytes, std::int64_t{entry.count} - 2))};
    return {entry.format, reader.ReadHexString(bytes, std::int64_t{entry.count} - 1)};
}

EntryValue stringValue(ByteReader& reader, const IfdEntry& entry)
{
    return {entry.format, XMLSanitize(textOf(reader, entry))};
}

// Two values fit into the entry and are read from there; none at all is read as an array.
EntryValue shortValue(ByteReader& reader, const IfdEntry& entry)
{
    const bool inEntry = entry.count == 1 || entry.count == 2;
    const FilePos first = inEntry ? entry.valueField() : valueAtOffset(reader, entry);
    return {entry.format, joined(reader, first, entry.count, 2,
                                 [&](FilePos place) { return numberText(reader.ReadInteger(place)); })};
}

EntryValue longValue(ByteReader& reader, const IfdEntry& entry)
{
    const FilePos first = entry.count == 1 ? entry.valueField() : valueAtOffset(reader, entry);
    return {entry.format,
            joined(reader, first, entry.count, 4, [&](FilePos place) { return numberText(reader.ReadLong(place)); })};
}

EntryValue rationalValue(ByteReader& reader, const IfdEntry& entry)
{
    const auto fraction = [&](FilePos place) {
        return numberText(reader.ReadLong(place)) + "/" + numberText(reader.ReadLong(place + 4));
    };
    return {entry.format, joined(reader, valueAtOffset(reader, entry), entry.count, 8, fraction)};
}

EntryValue undefinedValue(ByteReader& reader, const IfdEntry& entry)
{
    if (entry.tag == kMakerNote)
        return {entry.format, numberText(valueOffset(reader, entry).value)};
    if (isFourByteTag(entry.tag))
        return {entry.format, reader.ReadHexString(entry.valueField(), 4)};
    const std::string text = textOf(reader, entry);
    if (StringHasControlChars(text))
        return {kByte, reader.ReadHexString(bytesOf(reader, entry), std::int64_t{entry.count} - 1)};
    return {entry.format, XMLSanitize(text)};
}

struct ValueFormat {
    int number;
    EntryValue (*value)(ByteReader&, const IfdEntry&);
};

constexpr ValueFormat kValueFormats[] = {
    {kByte, byteValue},           {kString, stringValue},
    {kShort, shortValue},         {kLong, longValue},
    {kRational, rationalValue},   {kSignedByte, byteValue},
    {kUndefined, undefinedValue}, {kSignedShort, shortValue},
    {kSignedLong, longValue},     {kSignedRational, rationalValue},
};

} // namespace

int entryDataType(const IfdEntry& entry)
{
    const bool isByteArray = entry.format == kByte || entry.format == kSignedByte;
    return isByteArray && isWindowsText(entry.tag) ? kUnicodeString : entry.format;
}

EntryValue entryValue(ByteReader& reader, const IfdEntry& entry)
{
    const auto* row = std::ranges::find(kValueFormats, int{entry.format}, &ValueFormat::number);
    return row != std::end(kValueFormats) ? row->value(reader, entry) : EntryValue{entry.format, {}};
}

} // namespace ovisto
