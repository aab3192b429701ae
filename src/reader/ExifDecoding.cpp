// The part of JpegXml that turns APP1 segments into Exif and Exif1 elements.

#include "common/text/CodePage.h"
#include "common/text/Hex.h"
#include "common/text/NumberText.h"
#include "document/DataType.h"
#include "document/TagNumbers.h"
#include "document/XmlText.h"
#include "reader/EntryValue.h"
#include "reader/JpegXml.h"

namespace ovisto {

namespace {

constexpr int kMostEntries = 200; // cameras write some dozens; more means that this is no directory
constexpr std::int64_t kEntrySize = 12;

} // namespace

/// Appends an element that is closed whatever happens inside it.
template <class Content>
void JpegXml::appendContainer(const std::string& openingTag, Content content, std::string_view closingTag)
{
    append(openingTag);
    m_decoding.run(content);
    m_text += closingTag;
}

/// Reads one APP1 segment. `pointer`: its marker; `markLen`: its length field.
void JpegXml::ExifScan(std::uint16_t markLen, FilePos pointer)
{
    m_pointers = {};
    m_decoding.clear();

    const std::string identifier = reader().ReadStringNull(pointer + 4);
    if (identifier == "Exif") {
        const FilePos base = pointer + 10;
        const std::string byteOrder = reader().ReadString(base, 2);
        reader().littleEndian = byteOrder == "II";
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
void JpegXml::scanDirectories(FilePos base)
{
    const TiffOffset first{reader().ReadLong(base + 4)};
    const std::int64_t entries = reader().ReadInteger(filePos(base, first));
    const TiffOffset second{reader().ReadLong(filePos(base, first) + 2 + kEntrySize * entries)};
    IFDScan(base, first);

    if (!m_decoding.pending() && m_pointers.exif.value > 0) {
        const auto content = [&] {
            IFDScan(base, m_pointers.exif);
            if (m_pointers.makerNote.value > 0)
                appendBytes("MAKE", filePos(base, m_pointers.makerNote), m_pointers.makerNoteLength, "\r\n");
        };
        appendContainer("<IFDE" + xmlAtt("d", "2") + ">", content, "</IFDE>");
    }
    if (!m_decoding.pending() && m_pointers.interoperability.value > 0) {
        const auto content = [&] { IFDScan(base, m_pointers.interoperability); };
        appendContainer("<IFDI" + xmlAtt("d", "2") + ">", content, "</IFDI>");
    }
    if (m_decoding.pending() || second.value == 0)
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
void JpegXml::appendBytes(std::string_view name, FilePos first, std::int64_t length, std::string_view end)
{
    std::string bytes;
    m_decoding.run([&] { bytes = reader().ReadHexString(first, length); });
    const std::string element(name);
    appendElement("<" + element + xmlAtt("d", "1") + ">", bytes, "</" + element + ">" + std::string(end));
}

/// An APP1 segment of another kind (XMP, say) is kept as text, as it stands.
void JpegXml::scanOtherApp1(std::uint16_t markLen, FilePos pointer, const std::string& identifier)
{
    const auto identifierLength = static_cast<std::int64_t>(characterCount(identifier));
    const std::string payload = reader().ReadString(pointer + 5 + identifierLength, markLen - identifierLength - 3);
    appendElement("<Exif1" + xmlAtt("id", "FFE1") + xmlAtt("ns", identifier) + xmlAtt("d", "2") + ">\r\n<![CDATA[",
                  payload, "]]></Exif1>\r\n");
}

/// Reads one directory.
void JpegXml::IFDScan(FilePos base, TiffOffset ifdOffset)
{
    const FilePos directory = filePos(base, ifdOffset);
    const int entries = reader().ReadInteger(directory);
    if (entries > kMostEntries) {
        constexpr std::int64_t kShownBytes = 100;
        append("IFD directory seems corrupted: more than 200 entries! " +
               reader().ReadHexString(directory, kShownBytes));
        return;
    }
    for (int i = 0; i < entries; ++i) {
        IfdEntry entry{.base = base, .position = directory + 2 + i * kEntrySize};
        entry.tag = reader().ReadInteger(entry.position);
        if (entry.tag == kMakerNote && !m_keep.pCodifyMakerNote) {
            m_changesMade = true;
            continue;
        }
        if (entry.tag == 0)
            return;
        entry.format = reader().ReadInteger(entry.position + 2);
        entry.count = reader().ReadLong(entry.position + 4);
        appendEntry(entry);
    }
}

/// A value that cannot be read is empty; the entry stays.
void JpegXml::appendEntry(const IfdEntry& entry)
{
    EntryValue value{.dataType = entryDataType(entry), .text = {}};
    m_decoding.run([&] { value = entryValue(reader(), entry); });
    m_decoding.run([&] { recordPointer(entry, value.dataType, value.text); });
    std::string openingTag = "<IFD";
    openingTag.append(xmlAtt("id", hexNumber(entry.tag, 4)))
        .append(xmlAtt("d", std::int64_t{value.dataType}))
        .append(">");
    appendElement(openingTag, value.text, "</IFD>\r\n");
}

/// Remembers where an entry says that other parts of the segment are. The text counts, as it is what a document tells.
void JpegXml::recordPointer(const IfdEntry& entry, int dataType, std::string_view value)
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
    case kStripOffsets: // strips stand one behind the other, so the first one is where they begin
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
