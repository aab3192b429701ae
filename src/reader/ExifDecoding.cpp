// SPDX-License-Identifier: MIT

#include "reader/ExifDecoding.h"

#include "common/text/Hex.h"
#include "common/text/NumberText.h"
#include "common/text/Splitting.h"
#include "common/text/Unicode.h"
#include "document/DataType.h"
#include "document/StoredText.h"
#include "document/TagNumbers.h"
#include "document/XmlText.h"
#include "reader/FullValue.h"

#include <algorithm>
#include <span>
#include <utility>

namespace ovisto {

namespace {

constexpr int kMostEntries = 200; // cameras write some dozens; more means that this is no directory

/// Whether the link to the next directory that ends `directory` leads to `part`.
bool isLinkedFrom(const ExifPart& part, const ExifPart& directory)
{
    return part.pointer.offset == 0 && part.pointedFrom == directory.element;
}

/// Whether a run of bytes has an entry that says how long it is.
bool hasLengthEntry(const ExifPart& part)
{
    return part.pointer.length != 0;
}

} // namespace

/// Appends an element that is closed whatever happens inside it.
template <class Content>
void ExifDecoding::appendContainer(const std::string& openingTag, Content content, std::string_view closingTag)
{
    m_text.append(openingTag);
    m_errors.run(content);
    m_text.appendTag(closingTag);
}

void ExifDecoding::ExifScan(std::uint16_t markLen, FilePos pointer)
{
    const std::string identifier = m_reader.ReadStringNull(pointer + 4);
    if (identifier == "Exif") {
        const FilePos base = pointer + 10;
        const std::string byteOrder = m_reader.ReadString(base, 2);
        m_reader.littleEndian = byteOrder == "II";
        appendContainer(
            "<Exif" + xmlAtt("id", "FFE1") + xmlAtt("byteSeq", byteOrder) + xmlAtt("d", "7") + ">\r\n",
            [&] { scanFirstDirectory(base); }, "</Exif>\r\n");
    } else if (!m_keep.pCodifyExif1) {
        m_changesMade = true;
    } else if (m_keep.reading == Reading::Full) {
        appendFullApp1(markLen, pointer);
    } else {
        scanOtherApp1(markLen, pointer, identifier);
    }
}

/// Follows the TIFF header to the first directory, and from there on to all that the segment has.
void ExifDecoding::scanFirstDirectory(FilePos base)
{
    const ExifPart& first = *exifPart(kFirstDirectory);
    placeOf(first).offset.value = m_reader.ReadLong(base + 4);
    scanDirectory(first, base);
}

/// Reads the entries of a directory, then the parts that stand below it in the document.
void ExifDecoding::scanDirectory(const ExifPart& directory, FilePos base)
{
    const TiffOffset offset = placeOf(directory).offset;
    const FilePos position = filePos(base, offset);
    for (const ExifPart& part : kExifParts) {
        if (isLinkedFrom(part, directory))
            placeOf(part).offset.value = m_reader.ReadLong(ifdEntryPosition(position, m_reader.ReadInteger(position)));
    }
    IFDScan(directory, base, offset);
    for (const ExifPart& part : kExifParts) {
        if (part.parent == directory.element && isThere(part))
            appendPart(part, base);
    }
}

/// Whether the segment says that it has the part.
bool ExifDecoding::isThere(const ExifPart& part)
{
    if (part.reading == Reading::Full && m_keep.reading == Reading::Basic)
        return false;
    return hasLengthEntry(part) ? placeOf(part).length > 0 : placeOf(part).offset.value > 0;
}

/// Appends the element of a part. After an error, no further directory is read.
void ExifDecoding::appendPart(const ExifPart& part, FilePos base)
{
    if (part.kind == PartKind::Bytes)
        return appendBytes(part, base);
    if (part.reading == Reading::Full)
        return appendFullDirectory(part, base);
    if (m_errors.pending())
        return;
    if (part.purpose == kThumbnailBytes && !m_keep.pCodifyThumb) {
        m_changesMade = true;
        return;
    }
    const std::string name(part.element);
    appendContainer(
        "<" + name + xmlAtt("d", "2") + ">", [&] { scanDirectory(part, base); }, "</" + name + ">");
}

/// Appends a directory that only full documents have. What it holds, readable or not, changes nothing of the others.
void ExifDecoding::appendFullDirectory(const ExifPart& part, FilePos base)
{
    const ErrorTrap errors = std::exchange(m_errors, {});
    const std::string name(part.element);
    appendContainer(
        "<" + name + xmlAtt("d", "2") + ">", [&] { scanDirectory(part, base); }, "</" + name + ">\r\n");
    m_errors = errors;
}

/// Appends an element of plain bytes; it is empty where they cannot be read.
void ExifDecoding::appendBytes(const ExifPart& part, FilePos base)
{
    const Place& place = placeOf(part);
    std::string bytes;
    m_errors.run([&] { bytes = m_reader.ReadHexString(filePos(base, place.offset), place.length); });
    const std::string name(part.element);
    const std::string end = part.element == kMakerNoteBytes ? "\r\n" : ""; // the layout of the document
    m_text.appendElement("<" + name + xmlAtt("d", "1") + ">", bytes, "</" + name + ">" + end);
}

/// An APP1 segment of another kind (XMP, say) is kept as text, as it stands.
void ExifDecoding::scanOtherApp1(std::uint16_t markLen, FilePos pointer, const std::string& identifier)
{
    const auto identifierLength = static_cast<std::int64_t>(characterCount(identifier));
    const std::string payload = m_reader.ReadString(pointer + 5 + identifierLength, markLen - identifierLength - 3);
    m_text.appendElement("<Exif1" + xmlAtt("id", "FFE1") + xmlAtt("ns", identifier) + xmlAtt("d", "2") +
                             ">\r\n<![CDATA[",
                         payload, "]]></Exif1>\r\n");
}

/// The same with all of the payload. A parser would turn CR into LF within a section, so it stands beside them.
void ExifDecoding::appendFullApp1(std::uint16_t markLen, FilePos pointer)
{
    constexpr std::int64_t kLengthField = 2;
    const auto bytes = m_reader.readBytes(pointer + 4, markLen - kLengthField);
    const auto identifierEnd = std::ranges::find(bytes, 0);
    const std::span<const std::uint8_t> identifier(bytes.begin(), identifierEnd);
    const std::span<const std::uint8_t> payload(identifierEnd == bytes.end() ? identifierEnd : identifierEnd + 1,
                                                bytes.end());
    m_text.appendElement("<Exif1" + xmlAtt("id", "FFE1") +
                             attributeText("ns", shownText(storedPayload(identifier), identifier)) + xmlAtt("d", "2") +
                             ">\r\n",
                         cdataText(shownText(storedPayload(payload), payload)), "</Exif1>\r\n");
}

/// Reads one directory.
void ExifDecoding::IFDScan(const ExifPart& directory, FilePos base, TiffOffset ifdOffset)
{
    const FilePos position = filePos(base, ifdOffset);
    const int entries = m_reader.ReadInteger(position);
    if (entries > kMostEntries) {
        constexpr std::int64_t kShownBytes = 100;
        m_text.append("IFD directory seems corrupted: more than 200 entries! " +
                      m_reader.ReadHexString(position, kShownBytes));
        return;
    }
    for (int i = 0; i < entries; ++i) {
        const IfdEntry entry = readIfdEntry(m_reader, base, ifdEntryPosition(position, i));
        if (entry.tag == kMakerNote && !m_keep.pCodifyMakerNote) {
            m_changesMade = true;
            continue;
        }
        if (entry.tag == 0 && !directory.hasTagZero)
            return;
        appendEntry(directory, entry);
    }
}

/// A value that cannot be read is empty; the entry stays.
void ExifDecoding::appendEntry(const ExifPart& directory, const IfdEntry& entry)
{
    EntryValue value;
    const auto read = m_keep.reading == Reading::Full ? readFullEntryValue : readEntryValue;
    m_errors.run([&] { read(m_reader, entry, value); });
    if (directory.reading == Reading::Basic)
        m_errors.run([&] { recordPointer(entry, value); });
    std::string openingTag = "<IFD";
    openingTag.append(xmlAtt("id", hexNumber(entry.tag, 4)))
        .append(xmlAtt("d", std::int64_t{value.dataType}))
        .append(">");
    m_text.appendElement(openingTag, value.text, "</IFD>\r\n");
}

/// Remembers where an entry, in whichever directory, says that other parts of the segment are. The text counts, as it
/// is what the document says.
void ExifDecoding::recordPointer(const IfdEntry& entry, const EntryValue& value)
{
    for (const ExifPart& part : kExifParts) {
        if (part.reading == Reading::Full) {
            ErrorTrap trap; // a place that cannot be read changes nothing of the other parts
            if (entry.tag == part.pointer.offset)
                trap.run([&] { recordOffset(part, entry, value); });
        } else if (entry.tag == part.pointer.offset || entry.tag == part.strips.offset) {
            recordOffset(part, entry, value);
        } else if (entry.tag == part.pointer.length) {
            placeOf(part).length = toLong(value.text);
        } else if (entry.tag == part.strips.length) {
            for (const std::string_view length : split(value.text, ','))
                placeOf(part).length += toLong(length);
        }
    }
}

void ExifDecoding::recordOffset(const ExifPart& part, const IfdEntry& entry, const EntryValue& value)
{
    Place& place = placeOf(part);
    if (part.kind == PartKind::Directory) {
        place.offset.value = toLong(value.text);
    } else if (hasLengthEntry(part)) { // strips stand one after the other, so the first one is where they begin
        place.offset.value = toLong(split(value.text, ',').front());
    } else if (value.dataType == kUndefined) { // in any other format the value is not an offset
        place.offset.value = toLong(value.text);
        place.length = entry.count;
    }
}

} // namespace ovisto
