// SPDX-License-Identifier: MIT

#include "reader/EntryValue.h"

#include "common/text/NumberText.h"
#include "document/DataType.h"
#include "document/TagNumbers.h"
#include "document/XmlText.h"
#include "jpeg/FilePosition.h"

#include <cstdint>

namespace ovisto {

namespace {

TiffOffset valueOffset(ByteReader& reader, const IfdEntry& entry)
{
    return {reader.ReadLong(entry.valueField())};
}

/// Whether the value, of components of `size` bytes, fits into the entry and hence stands there.
bool isInside(const IfdEntry& entry, std::int64_t size)
{
    return entry.count * size <= kValueFieldSize;
}

FilePos valuePosition(ByteReader& reader, const IfdEntry& entry, std::int64_t size = 1)
{
    return isInside(entry, size) ? entry.valueField() : filePos(entry.base, valueOffset(reader, entry));
}

/// The characters of a text. A text in the entry may fill it; one outside ends with a zero byte, which is left out.
std::string textOf(ByteReader& reader, const IfdEntry& entry)
{
    const std::int64_t length = isInside(entry, 1) ? entry.count : std::int64_t{entry.count} - 1;
    return reader.ReadString(valuePosition(reader, entry), length);
}

// The last byte of an array is left out; files that this program wrote are read by others with that in mind.
std::string byteText(ByteReader& reader, const IfdEntry& entry)
{
    return reader.ReadHexString(valuePosition(reader, entry), std::int64_t{entry.count} - 1);
}

std::string wideText(ByteReader& reader, const IfdEntry& entry)
{
    return XMLSanitize(reader.ReadUnicode(valuePosition(reader, entry), std::int64_t{entry.count} - 2));
}

void readUndefined(ByteReader& reader, const IfdEntry& entry, EntryValue& value)
{
    if (entry.tag == kMakerNote) {
        value.text = numberText(valueOffset(reader, entry).value);
    } else if (isFourByteTag(entry.tag)) {
        value.text = reader.ReadHexString(entry.valueField(), kValueFieldSize);
    } else if (const std::string text = textOf(reader, entry); StringHasControlChars(text)) {
        value.dataType = kByte; // even if it has too many bytes to be shown
        value.text = byteText(reader, entry);
    } else {
        value.text = XMLSanitize(text);
    }
}

std::string shortText(ByteReader& reader, FilePos place)
{
    return numberText(reader.ReadInteger(place));
}

std::string longText(ByteReader& reader, FilePos place)
{
    return numberText(reader.ReadLong(place));
}

std::string rationalText(ByteReader& reader, FilePos place)
{
    return longText(reader, place) + "/" + longText(reader, place + 4);
}

/// The numbers of an array, `size` bytes each, as `number` renders the one at a place, with commas between them.
std::string joined(ByteReader& reader, const IfdEntry& entry, std::int64_t size,
                   std::string (*number)(ByteReader&, FilePos))
{
    const FilePos first = valuePosition(reader, entry, size);
    reader.checkLength(entry.count * size);
    std::string text;
    for (std::int64_t i = 0; i < entry.count; ++i) {
        if (i > 0)
            text += ',';
        text += number(reader, first + i * size);
    }
    reader.charge(static_cast<std::int64_t>(text.size()));
    return text;
}

/// The data type that the document gives an entry, as far as the entry alone decides it.
int entryDataType(const IfdEntry& entry)
{
    const bool isByteArray = entry.format == kByte || entry.format == kSignedByte;
    return isByteArray && isWindowsText(entry.tag) ? kUnicodeString : entry.format;
}

} // namespace

void readEntryValue(ByteReader& reader, const IfdEntry& entry, EntryValue& value)
{
    value = {.dataType = entryDataType(entry), .text = {}};
    const DataType* type = findDataType(entry.format);
    if (type == nullptr)
        return;
    switch (type->form) {
    case ValueForm::Hexadecimal:
        value.text = value.dataType == kUnicodeString ? wideText(reader, entry) : byteText(reader, entry);
        break;
    case ValueForm::Text:
        value.text = XMLSanitize(textOf(reader, entry));
        break;
    case ValueForm::RawText:
        readUndefined(reader, entry, value);
        break;
    case ValueForm::Short:
        value.text = joined(reader, entry, type->size, shortText);
        break;
    case ValueForm::Long:
        value.text = joined(reader, entry, type->size, longText);
        break;
    case ValueForm::Rational:
        value.text = joined(reader, entry, type->size, rationalText);
        break;
    case ValueForm::WideText:
    case ValueForm::Real:
        break; // of the document only: a file that has this number means another type, which is not read
    }
}

} // namespace ovisto
