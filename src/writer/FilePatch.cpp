// SPDX-License-Identifier: MIT

#include "writer/FilePatch.h"

#include "common/system/Interruption.h"
#include "common/text/CodePage.h"
#include "document/NodePath.h"
#include "jpeg/FileIdentity.h"
#include "jpeg/Markers.h"
#include "jpeg/ScanData.h"
#include "writer/AboutNode.h"
#include "writer/DocumentChanges.h"
#include "writer/ExifPatch.h"
#include "writer/FileSegments.h"
#include "writer/PlainSegment.h"
#include "writer/SegmentWriter.h"
#include "writer/TextBytes.h"

#include <algorithm>
#include <array>
#include <limits>
#include <vector>

namespace ovisto {

namespace {

using Bytes = std::vector<std::uint8_t>;

/// The one IMG element of a document.
ConstXmlNode imageElement(const ConstXmlNode& root)
{
    const std::vector<ConstXmlNode> images = root.childElements("IMG");
    if (images.empty())
        throw systemError(kObjectNotSet);
    if (images.size() > 1)
        throw Error{kInvalidCall, Message::MoreThanOneImage};
    return images.front();
}

void checkImage(const ConstXmlNode& before, const ConstXmlNode& after)
{
    const ConstXmlNode imageBefore = imageElement(before);
    const ConstXmlNode imageAfter = imageElement(after);
    for (const char* attribute : {"offset", "length"}) {
        if (AttributeGet(imageBefore, attribute) != AttributeGet(imageAfter, attribute))
            throw fileWasChanged();
    }
}

bool isExif(const ConstXmlNode& element)
{
    return element.name() == "Exif";
}

/// Copies and writes segments one after the other.
class Patching {
public:
    Patching(const DocumentSave& save, const InputFile& oldFile, OutputFile& newFile, ErrorReporter& reporter)
        : m_before(segmentElements(save.before.documentElement())),
          m_after(segmentElements(save.after.documentElement())), m_clearance(save.clearance), m_oldFile(oldFile),
          m_newFile(newFile), m_writer(newFile, reporter), m_segments(segmentsOf(oldFile))
    {
        if (m_segments.size() != m_before.size())
            throw fileWasChanged();
        if (m_after.empty() || m_after.back().name() != "SOS")
            throw Error{kInvalidCall, Message::ScanHeaderNotLast};
    }

    void write()
    {
        constexpr std::int64_t kStartOfImageSize = 2;
        copy(0, kStartOfImageSize);
        LongLoop segments;
        for (const DocumentPair& pair : segmentPairs(m_before, m_after)) {
            segments.step();
            if (!pair.isDeleted())
                writeSegment(pair);
        }
        const std::int64_t image = m_segments.back().end().value - 1;
        copy(image, endOfKept() - image);
    }

private:
    std::int64_t endOfKept() const
    {
        if (!m_clearance.afterPicture)
            return m_oldFile.size();
        const auto end = scanData(m_oldFile, m_segments.back().end()).end;
        if (!end)
            throw Error{kInvalidCall, Message::PictureWithoutEnd};
        return *end;
    }

    void writeSegment(const DocumentPair& pair)
    {
        const ConstXmlNode& after = m_after[*pair.after];
        const Segment* segment = pair.before ? &m_segments[*pair.before] : nullptr;
        const bool isCleared = m_clearance.leftovers && isExif(after);
        if (segment != nullptr && pair.isSame && !isCleared)
            copySegment(*segment);
        else
            aboutNode(after, [&] {
                changeSegment(segment, segment != nullptr ? m_before[*pair.before] : ConstXmlNode(), after);
            });
    }

    void changeSegment(const Segment* segment, const ConstXmlNode& before, const ConstXmlNode& after)
    {
        if (isExif(after))
            writeExif(segment, before, after);
        else if (after.name() == "Exif1" && readingOf(after) == Reading::Full)
            writeFullApp1(segment, after);
        else if (segment != nullptr && after.name() == "Exif1")
            writeOtherApp1(*segment, after);
        else
            writePlainSegment(m_writer, after);
    }

    void copySegment(const Segment& segment)
    {
        copy(segment.position.value - 1, segment.end().value - segment.position.value);
    }

    void copy(std::int64_t offset, std::int64_t length)
    {
        if (m_newFile.writeFrom(m_oldFile, offset, length) != length)
            throw fileWasChanged();
    }

    void writeExif(const Segment* segment, const ConstXmlNode& before, const ConstXmlNode& after)
    {
        const std::vector<PartChange> parts = partChanges(before, after);
        if (segment != nullptr && !differs(parts) && !m_clearance.leftovers) {
            copySegment(*segment);
            return;
        }
        constexpr std::array<std::uint8_t, kExifPrefixSize> kNewPrefix = {0xFF, 0xE1, 0, 0, 'E', 'x', 'i', 'f', 0, 0};
        const Bytes old = segment != nullptr ? segmentBytes(m_oldFile, *segment) : Bytes();
        const Bytes block = patchedExif(segment != nullptr ? exifBlock(old) : TiffBlock::empty(), parts,
                                        m_clearance.leftovers ? Leftovers::Clear : Leftovers::Keep);
        Bytes bytes(kNewPrefix.begin(), kNewPrefix.end());
        if (segment != nullptr)
            std::copy_n(old.begin(), bytes.size(), bytes.begin());
        bytes.insert(bytes.end(), block.begin(), block.end());
        writeWithLength(std::move(bytes));
    }

    void writeFullApp1(const Segment* segment, const ConstXmlNode& after)
    {
        constexpr std::ptrdiff_t kHeadSize = 4; // marker and length
        const Bytes old = segment != nullptr ? segmentBytes(m_oldFile, *segment) : Bytes{0xFF, 0xE1, 0, 0};
        const auto identifierEnd = std::find(old.begin() + kHeadSize, old.end(), 0);
        const auto payload = identifierEnd == old.end() ? old.end() : identifierEnd + 1;
        const Bytes identifier = changedPayload({old.begin() + kHeadSize, identifierEnd}, AttributeGet(after, "ns"));
        const Bytes characters = changedPayload({payload, old.end()}, app1Text(after));
        Bytes bytes(old.begin(), old.begin() + kHeadSize);
        bytes.insert(bytes.end(), identifier.begin(), identifier.end());
        bytes.push_back(0);
        bytes.insert(bytes.end(), characters.begin(), characters.end());
        writeWithLength(std::move(bytes));
    }

    /// What follows the first zero byte of the text is not in a basic document, and stays.
    void writeOtherApp1(const Segment& segment, const ConstXmlNode& after)
    {
        constexpr std::ptrdiff_t kHeadSize = 4; // marker and length
        const Bytes old = segmentBytes(m_oldFile, segment);
        const std::string text = app1Text(after);
        if (text.find("]]>") != std::string::npos)
            throw Error{kInvalidCall, Message::TextHasCdataEnd};
        const auto identifierEnd = std::find(old.begin() + kHeadSize, old.end(), 0);
        const auto rest = std::find(identifierEnd == old.end() ? old.end() : identifierEnd + 1, old.end(), 0);
        const Bytes identifier = codePageBytes(AttributeGet(after, "ns"));
        const Bytes characters = codePageBytes(text);
        Bytes bytes(old.begin(), old.begin() + kHeadSize);
        bytes.insert(bytes.end(), identifier.begin(), identifier.end());
        bytes.push_back(0);
        bytes.insert(bytes.end(), characters.begin(), characters.end());
        bytes.insert(bytes.end(), rest, old.end());
        writeWithLength(std::move(bytes));
    }

    /// Writes a segment, its length field set to what it has.
    void writeWithLength(Bytes bytes)
    {
        constexpr std::size_t kMarkerSize = 2;
        const std::size_t length = bytes.size() - kMarkerSize;
        if (length > std::numeric_limits<std::uint16_t>::max())
            throw Error{kOverflow, Message::SegmentTooLong};
        bytes[2] = static_cast<std::uint8_t>(length / 256);
        bytes[3] = static_cast<std::uint8_t>(length % 256);
        m_newFile.write(bytes);
    }

    std::vector<ConstXmlNode> m_before;
    std::vector<ConstXmlNode> m_after;
    Clearance m_clearance;
    const InputFile& m_oldFile;
    OutputFile& m_newFile;
    SegmentWriter m_writer;
    std::vector<Segment> m_segments;
};

} // namespace

void patchJpeg(const DocumentSave& save, const InputFile& oldFile, OutputFile& newFile, ErrorReporter& reporter)
{
    checkImage(save.before.documentElement(), save.after.documentElement());
    Patching(save, oldFile, newFile, reporter).write();
}

} // namespace ovisto
