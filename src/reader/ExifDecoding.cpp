#include "reader/ExifDecoding.h"

#include "common/text/CodePage.h"
#include "common/text/Hex.h"
#include "common/text/NumberText.h"
#include "document/DataType.h"
#include "document/TagNumbers.h"
#include "document/XmlText.h"
#include "reader/EntryValue.h"

namespace ovisto {

namespace {

constexpr int kMostEntries = 200; // cameras write some dozens; more means that this is no directory

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
            [&] { scanDirectories(base); }, "</Exif>\r\n");
    } else if (m_keep.pCodifyExif1) {
        scanOtherApp1(markLen, pointer, identifier);
    } else {
        m_changesMade = true;
    }
}

/// Reads the directories of an Exif segment, each only as long as nothing went wrong before.
void ExifDecoding::scanDirectories(FilePos base)
{
    const TiffOffset first{m_reader.ReadLong(base + 4)};
    const int entries = m_reader.ReadInteger(filePos(base, first));
    const TiffOffset second{m_reader.ReadLong(ifdEntryPosition(filePos(base, first), entries))};
    IFDScan(base, first);

    if (!m_errors.pending() && m_pointers.exif.value > 0) {
        const auto content = [&] {
            IFDScan(base, m_pointers.exif);
            if (m_pointers.makerNote.value > 0)
                appendBytes("MAKE", filePos(base, m_pointers.makerNote), m_pointers.makerNoteLength, "\r\n");
        };
        appendContainer("<IFDE" + xmlAtt("d", "2") + ">", content, "</IFDE>");
    }
    if (!m_errors.pending() && m_pointers.interoperability.value > 0) {
        const auto content = [&] { IFDScan(base, m_pointers.interoperability); };
        appendContainer("<IFDI" + xmlAtt("d", "2") + ">", content, "</IFDI>");
    }
    if (m_errors.pending() || second.value == 0)
        return;
    if (!m_keep.pCodifyThumb) {
        m_changesMade = true;
        return;
    }
    const auto content = [&] {
        IFDScan(base, second);
        if (m_pointers.thumbnailLength > 0)
            appendBytes("THUM", filePos(base, m_pointers.thumbnail), m_pointers.thumbnailLength, "");
    };
    appendContainer("<IFD1" + xmlAtt("d", "2") + ">", content, "</IFD1>");
}

/// Appends an element of plain bytes; it is empty where they cannot be read.
void ExifDecoding::appendBytes(std::string_view name, FilePos first, std::int64_t length, std::string_view end)
{
    std::string bytes;
    m_errors.run([&] { bytes = m_reader.ReadHexString(first, length); });
    const std::string element(name);
    m_text.appendElement("<" + element + xmlAtt("d", "1") + ">", bytes, "</" + element + ">" + std::string(end));
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

/// Reads one directory.
void ExifDecoding::IFDScan(FilePos base, TiffOffset ifdOffset)
{
    const FilePos directory = filePos(base, ifdOffset);
    const int entries = m_reader.ReadInteger(directory);
    if (entries > kMostEntries) {
        constexpr std::int64_t kShownBytes = 100;
        m_text.append("IFD directory seems corrupted: more than 200 entries! " +
                      m_reader.ReadHexString(directory, kShownBytes));
        return;
    }
    for (int i = 0; i < entries; ++i) {
        const IfdEntry entry = readIfdEntry(m_reader, base, ifdEntryPosition(directory, i));
        if (entry.tag == kMakerNote && !m_keep.pCodifyMakerNote) {
            m_changesMade = true;
            continue;
        }
        if (entry.tag == 0)
            return;
        appendEntry(entry);
    }
}

/// A value that cannot be read is empty; the entry stays.
void ExifDecoding::appendEntry(const IfdEntry& entry)
{
    EntryValue value{.dataType = entryDataType(entry), .text = {}};
    m_errors.run([&] { value = entryValue(m_reader, entry); });
    m_errors.run([&] { recordPointer(entry, value.dataType, value.text); });
    std::string openingTag = "<IFD";
    openingTag.append(xmlAtt("id", hexNumber(entry.tag, 4)))
        .append(xmlAtt("d", std::int64_t{value.dataType}))
        .append(">");
    m_text.appendElement(openingTag, value.text, "</IFD>\r\n");
}

/// Remembers where an entry says that other parts of the segment are. The text counts, as it is what the document says.
void ExifDecoding::recordPointer(const IfdEntry& entry, int dataType, std::string_view value)
{
    switch (entry.tag) {
    case kExifDirectory:
        m_pointers.exif.value = toLong(value);
        break;
    case kInteroperabilityDirectory:
        m_pointers.interoperability.value = toLong(value);
        break;
    case kMakerNote:
        if (dataType == kUndefined) {
            m_pointers.makerNote.value = toLong(value);
            m_pointers.makerNoteLength = entry.count;
        }
        break;
    case kStripOffsets: // strips stand one after the other, so the first one is where they begin
    case kThumbnailOffset:
        m_pointers.thumbnail.value = toLong(split(value, ',').front());
        break;
    case kThumbnailLength:
        m_pointers.thumbnailLength = toLong(value);
        break;
    case kStripByteCounts:
        for (const std::string_view length : split(value, ','))
            m_pointers.thumbnailLength += toLong(length);
        break;
    default:
        break;
    }
}

} // namespace ovisto
