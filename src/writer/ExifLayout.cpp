// SPDX-License-Identifier: MIT

#include "writer/ExifLayout.h"

#include "common/system/Interruption.h"
#include "common/text/Hex.h"
#include "common/text/NumberText.h"
#include "common/text/Unicode.h"
#include "document/DataType.h"
#include "document/Directories.h"
#include "document/NodePath.h"
#include "document/TagNumbers.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace ovisto {

namespace {

constexpr std::int64_t kTiffHeaderSize = 8;
constexpr std::int64_t kEntrySize = 12;
constexpr std::int64_t kDirectoryFrameSize = 6; // the count before the entries, the link after them

/// The entry of `directory` that has this tag.
XmlNode entryOf(XmlNode directory, std::uint16_t tag)
{
    const std::vector<XmlNode> entries = directory.childElements("IFD");
    const auto found = std::ranges::find(entries, hexNumber(tag, 4),
                                         [](const ConstXmlNode& entry) { return AttributeGet(entry, "id"); });
    return found != entries.end() ? *found : XmlNode();
}

/// The entry of this tag in the directory that points to `part`.
XmlNode pointingEntry(XmlNode exif, const ExifPart& part, std::uint16_t tag)
{
    return entryOf(partNode(exif, *exifPart(part.pointedFrom)), tag);
}

/// Bytes that the hexadecimal text of an element stands for.
std::int64_t hexLength(const ConstXmlNode& element)
{
    return element ? hexByteCount(element.text()) : 0;
}

int tagOf(const ConstXmlNode& entry)
{
    return Hex4ToLong(AttributeGet(entry, "id"));
}

/// Offsets are 32 bits, signed.
void advance(std::int64_t& pos, std::int64_t bytes)
{
    if (pos + bytes > std::numeric_limits<std::int32_t>::max())
        throw systemError(kOverflow);
    pos += bytes;
}

/// Gives every entry below `exif` its component count and says whether its value stands inside.
void countComponents(XmlNode exif)
{
    std::string inside = "0"; // an entry of an unknown type takes over that of the one before
    LongLoop entries;
    for (XmlNode entry : exif.descendants("IFD")) {
        entries.step();
        const int tag = tagOf(entry);
        const std::string text = entry.text();
        std::int64_t count = 0;
        if (const ExifPart* bytes = bytesCountedBy(tag)) {
            count = hexLength(partNode(exif, *bytes));
            inside = "1";
        } else if (isFourByteTag(tag)) {
            count = kValueFieldSize;
            inside = "1";
        } else if (const DataType* type = findDataType(dataTypeOf(entry))) {
            count = componentCount(*type, text);
            inside = count <= type->mostInside ? "1" : "0";
        } else {
            count = static_cast<std::int64_t>(characterCount(text));
        }
        AttributeSet(entry, "l", std::to_string(count));
        AttributeSet(entry, "s", inside);
    }
}

/// Lays out a directory, if it is there, and points at it what should; to 0 where it is not.
void layOutDirectory(std::int64_t& pos, XmlNode exif, const ExifPart& part, ErrorReporter& reporter)
{
    const XmlNode directory = partNode(exif, part);
    const std::string offset = directory ? std::to_string(pos) : "0";
    if (part.pointer.offset != 0)
        pointingEntry(exif, part, part.pointer.offset).setText(offset);
    else if (const ExifPart* linking = exifPart(part.pointedFrom))
        AttributeSet(partNode(exif, *linking), "lo", offset);
    if (directory)
        CalcOffsets(pos, directory, reporter);
}

/// Bytes without an entry that points to them are placed too, so that they are not lost.
void layOutCountedBytes(std::int64_t& pos, XmlNode exif, const ExifPart& part, ErrorReporter& reporter)
{
    const XmlNode bytes = partNode(exif, part);
    pointingEntry(exif, part, part.pointer.offset).setText(bytes ? std::to_string(pos) : "0");
    if (!bytes)
        return;
    AttributeSet(bytes, "o", std::to_string(pos));
    reported(reporter, Message::MakerNoteNotTiedUp, [&] { advance(pos, hexLength(bytes)); });
}

/// Bytes whose number stands in an entry of its own.
void layOutMeasuredBytes(std::int64_t& pos, XmlNode exif, const ExifPart& part)
{
    const XmlNode bytes = partNode(exif, part);
    const std::int64_t length = hexLength(bytes);
    XmlNode stripOffsets = pointingEntry(exif, part, part.strips.offset);
    if (stripOffsets) {
        // Kept as files have always been written: the step that should set StripByteCounts (0117) never finds that
        // entry, and so the length goes into StripOffsets again, over the offset.
        stripOffsets.setText(std::to_string(bytes ? length : pos));
    } else if (bytes) {
        pointingEntry(exif, part, part.pointer.offset).setText(std::to_string(pos));
        pointingEntry(exif, part, part.pointer.length).setText(std::to_string(length));
    }
    advance(pos, length);
}

void layOutPart(std::int64_t& pos, XmlNode exif, const ExifPart& part, ErrorReporter& reporter)
{
    if (part.kind == PartKind::Directory)
        layOutDirectory(pos, exif, part, reporter);
    else if (part.pointer.length == 0)
        layOutCountedBytes(pos, exif, part, reporter);
    else
        layOutMeasuredBytes(pos, exif, part);
}

} // namespace

std::int64_t layOutExif(XmlNode exif, ErrorReporter& reporter)
{
    reported(reporter, Message::ExifLengthFailed, [&] { countComponents(exif); });

    std::int64_t pos = kTiffHeaderSize;
    for (const ExifPart& part : kExifParts) {
        if (part.reading == Reading::Basic) // only such documents are laid out
            layOutPart(pos, exif, part, reporter);
    }
    return pos;
}

std::int64_t laidOutSize(const ConstXmlNode& entry)
{
    const int tag = tagOf(entry);
    if (AttributeGet(entry, "s") == "1" || bytesCountedBy(tag) != nullptr || isFourByteTag(tag))
        return kValueFieldSize;
    const DataType* type = findDataType(dataTypeOf(entry));
    return type != nullptr ? type->size * attributeToLong(AttributeGet(entry, "l")) : 0;
}

void CalcOffsets(std::int64_t& pos, XmlNode directory, ErrorReporter& reporter)
{
    reported(reporter, Message::ExifOffsetsFailed, [&] {
        AttributeSet(directory, "o", std::to_string(pos));
        const std::vector<XmlNode> entries = directory.childElements("IFD");
        advance(pos, kEntrySize * static_cast<std::int64_t>(entries.size()) + kDirectoryFrameSize);
        for (const XmlNode& entry : entries) {
            if (AttributeGet(entry, "s") != "0")
                continue;
            AttributeSet(entry, "o", std::to_string(pos));
            advance(pos, laidOutSize(entry));
        }
    });
}

} // namespace ovisto
