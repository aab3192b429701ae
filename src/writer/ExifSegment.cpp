// SPDX-License-Identifier: MIT

#include "writer/ExifSegment.h"

#include "common/text/Hex.h"
#include "common/text/NumberText.h"
#include "common/text/Splitting.h"
#include "document/DataType.h"
#include "document/Directories.h"
#include "document/NodePath.h"
#include "document/TagNumbers.h"
#include "writer/AboutNode.h"
#include "writer/ExifLayout.h"

#include <algorithm>
#include <iterator>

namespace ovisto {

namespace {

void writeHexValue(SegmentWriter& writer, std::string_view text)
{
    writer.WriteHex(text);
}

void writeTextValue(SegmentWriter& writer, std::string_view text)
{
    writer.WriteNarrowString(text);
}

void writeWideTextValue(SegmentWriter& writer, std::string_view text)
{
    writer.WriteWideString(text);
}

// A single Short stands in the entry and is followed by two bytes that fill it.
void writeShortValue(SegmentWriter& writer, std::string_view text)
{
    const auto items = split(text, ',');
    for (const std::string_view item : items)
        writer.WriteInteger(toLong(item));
    if (items.size() == 1)
        writer.WriteInteger(0);
}

void writeLongValue(SegmentWriter& writer, std::string_view text)
{
    for (const std::string_view item : split(text, ','))
        writer.WriteLong(toLong(item));
}

void writeRationalValue(SegmentWriter& writer, std::string_view text)
{
    for (const std::string_view item : split(text, ',')) {
        const auto parts = split(item, '/');
        if (parts.size() < 2)
            throw systemError(kTypeMismatch);
        writer.WriteLong(toLong(parts[0]));
        writer.WriteLong(toLong(parts[1]));
    }
}

struct ValueWriter {
    ValueForm form;
    void (*write)(SegmentWriter&, std::string_view);
};

constexpr ValueWriter kValueWriters[] = {
    {ValueForm::Hexadecimal, writeHexValue},   {ValueForm::Text, writeTextValue},
    {ValueForm::WideText, writeWideTextValue}, {ValueForm::RawText, writeTextValue},
    {ValueForm::Short, writeShortValue},       {ValueForm::Long, writeLongValue},
    {ValueForm::Rational, writeRationalValue},
};

/// Writes something that was laid out with `size` bytes. If it has more or fewer, what follows would not be where the
/// directories say.
template <class Write> void writeLaidOut(SegmentWriter& writer, std::int64_t size, Write write)
{
    const std::int64_t start = writer.written();
    write();
    const std::int64_t written = writer.written() - start;
    if (written != size)
        throw Error{kInvalidCall, {Message::ValueLengthWrong, written, size}};
}

/// Writes the value of an entry. What cannot be written is reported with the value, and raised.
void writeEntryValue(SegmentWriter& writer, const ConstXmlNode& entry, int dataType)
{
    const std::string text = entry.text();
    reported(
        writer.reporter(), [&] { return Phrase(Message::ValueFailed, std::to_string(dataType), text); },
        [&] {
            aboutNode(entry, [&] {
                writeLaidOut(writer, laidOutSize(entry),
                             [&] { WriteValue(writer, text, dataType, AttributeGet(entry, "id")); });
            });
        });
}

bool standsInside(const ConstXmlNode& entry)
{
    return AttributeGet(entry, "s") == "1";
}

void writePart(SegmentWriter& writer, const ExifPart& part, const ConstXmlNode& node)
{
    if (part.kind == PartKind::Directory)
        WriteIFD(writer, node);
    else
        writeLaidOut(writer, hexByteCount(node.text()), [&] { writer.WriteHex(node.text()); });
}

} // namespace

void WriteExif(SegmentWriter& writer, XmlNode exif)
{
    constexpr std::int64_t kLengthAndIdentifier = 8;
    const std::int64_t length = layOutExif(exif, writer.reporter()) + kLengthAndIdentifier;

    ErrorTrap trap;
    trap.run([&] { writer.WriteHex("FFE1"); });
    const std::int64_t start = writer.written();
    trap.run([&] { writer.WriteInteger(length); });
    AttributeSet(exif, "byteSeq", "II");
    writer.IntelOrder = true;
    trap.run([&] { writer.WriteHex("457869660000"); }); // "Exif" and two zero bytes
    trap.run([&] { writer.WriteHex(writer.IntelOrder ? "49492A0008000000" : "4D4D002A00000008"); });

    for (const ExifPart& part : kExifParts) {
        if (const XmlNode node = partNode(exif, part))
            trap.run([&] { aboutNode(node, [&] { writePart(writer, part, node); }); });
    }

    if (!trap.pending())
        trap.run([&] { checkSegmentLength(length, writer.written() - start); });
    reportPending(writer.reporter(), Message::ExifWriteFailed, trap);
    writer.IntelOrder = false;
    trap.raise();
}

void WriteIFD(SegmentWriter& writer, const ConstXmlNode& directory)
{
    const std::vector<ConstXmlNode> entries = directory.childElements("IFD");
    writer.WriteInteger(static_cast<std::int64_t>(entries.size()));
    for (const ConstXmlNode& entry : entries) {
        const int dataType = dataTypeOf(entry);
        writer.WriteInteger(Hex4ToLong(AttributeGet(entry, "id")));
        writer.WriteInteger(dataType == kUnicodeString ? kByte : dataType); // in the file it is an array of bytes
        writer.WriteLong(attributeToLong(AttributeGet(entry, "l")));
        if (standsInside(entry))
            writeEntryValue(writer, entry, dataType);
        else
            writer.WriteLong(attributeToLong(AttributeGet(entry, "o")));
    }
    writer.WriteLong(attributeToLong(AttributeGet(directory, "lo")));
    for (const ConstXmlNode& entry : entries) {
        if (!standsInside(entry))
            writeEntryValue(writer, entry, dataTypeOf(entry));
    }
}

void WriteValue(SegmentWriter& writer, std::string_view text, int dataType, std::string_view id)
{
    const int tag = Hex4ToLong(id);
    if (dataType == kUndefined && bytesCountedBy(tag) != nullptr)
        return writer.WriteLong(toLong(text));
    if (dataType == kUndefined && isFourByteTag(tag))
        return writer.WriteHex(text);
    const DataType* type = findDataType(dataType);
    if (type == nullptr)
        return; // a value of an unknown type cannot be written
    const auto* row = std::ranges::find(kValueWriters, type->form, &ValueWriter::form);
    row->write(writer, text);
}

} // namespace ovisto
