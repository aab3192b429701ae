// SPDX-License-Identifier: MIT

#include "writer/SaveReceipt.h"

#include "common/Error.h"
#include "common/text/Hex.h"
#include "document/NodePath.h"
#include "document/Reading.h"
#include "jpeg/Markers.h"
#include "jpeg/ScanData.h"
#include "writer/DocumentChanges.h"
#include "writer/ExifContent.h"
#include "writer/FileSegments.h"
#include "writer/PlainSegment.h"
#include "writer/ShownExif.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>
#include <span>
#include <string_view>

namespace ovisto {

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::size_t kMostShown = 60; // characters of a value in a message

int tagOf(const ConstXmlNode& entry)
{
    return Hex4ToLong(AttributeGet(entry, "id"));
}

/// An entry that a document has to have.
struct ExpectedEntry {
    int tag = 0;
    ConstXmlNode node;
    bool isEdited = false;
};

class Receipt {
public:
    Receipt(const InputFile& oldFile, const InputFile& newFile, const XmlDocument& before, const XmlDocument& after,
            ImageEnd end)
        : m_oldFile(oldFile), m_newFile(newFile), m_end(end), m_before(segmentElements(before.documentElement())),
          m_after(segmentElements(after.documentElement())), m_oldSegments(segmentsOf(oldFile)),
          m_newSegments(segmentsOf(newFile))
    {
    }

    SaveReceipt compare(const XmlDocument& found)
    {
        m_found = segmentElements(found.documentElement());
        const bool isWhole = m_oldSegments.size() == m_before.size() && m_newSegments.size() == m_after.size() &&
                             m_newSegments.size() == m_found.size();
        if (isWhole)
            compareSegments();
        else
            lose({Message::WouldHaveSegments, m_newSegments.size(), m_after.size()});
        compareImage();
        noteTrailer();
        return std::move(m_receipt);
    }

private:
    void lose(Phrase what) { m_receipt.losses.push_back(std::move(what)); }

    void compareSegments()
    {
        for (const DocumentPair& pair : segmentPairs(m_before, m_after)) {
            if (pair.isDeleted()) {
                ++m_receipt.changed;
                continue;
            }
            if (m_after[*pair.after].name() == "Exif")
                compareExif(pair);
            else
                compareSegment(pair);
        }
    }

    static Phrase segmentName(const ConstXmlNode& element)
    {
        const std::string id = AttributeGet(element, "id");
        return {Message::SegmentNamed, (id.empty() ? element.name() : id) + " " + AttributeGet(element, "ns")};
    }

    void compareSegment(const DocumentPair& pair)
    {
        const ConstXmlNode& after = m_after[*pair.after];
        const ConstXmlNode& found = m_found[*pair.after];
        const bool saysTheSame =
            found.name() == after.name() && AttributeGet(found, "id") == AttributeGet(after, "id") &&
            AttributeGet(found, "ns") == AttributeGet(after, "ns") && app1Text(found) == app1Text(after);
        const bool isSame = !pair.isSame || segmentBytes(m_oldFile, m_oldSegments[*pair.before]) ==
                                                segmentBytes(m_newFile, m_newSegments[*pair.after]);
        if (!saysTheSame || !isSame)
            lose({Message::WouldDiffer, segmentName(after)});
        ++(pair.isSame ? m_receipt.unchanged : m_receipt.changed);
    }

    void compareExif(const DocumentPair& pair)
    {
        const ConstXmlNode before = pair.before ? m_before[*pair.before] : ConstXmlNode();
        const std::vector<PartChange> parts = partChanges(before, m_after[*pair.after]);
        const Bytes newSegment = segmentBytes(m_newFile, m_newSegments[*pair.after]);
        const Bytes oldSegment = pair.before ? segmentBytes(m_oldFile, m_oldSegments[*pair.before]) : Bytes();
        const TiffBlock oldBlock = pair.before ? exifBlock(oldSegment) : TiffBlock::empty();
        const TiffBlock newBlock = exifBlock(newSegment);
        if (m_found[*pair.after].name() != "Exif") {
            lose({Message::WouldBeLost, Message::ExifSegment});
            return;
        }
        ErrorTrap trap; // what cannot be compared may be lost
        trap.run([&] { compareContent(oldBlock, newBlock, parts); });
        if (trap.pending() && isOfSystem(trap.error()))
            trap.raise();
        if (trap.pending())
            lose(trap.take().description);
        compareParts(parts, m_found[*pair.after]);
        noteRemains(oldBlock, newBlock, parts);
    }

    void compareContent(const TiffBlock& oldBlock, const TiffBlock& newBlock, const std::vector<PartChange>& parts)
    {
        const ExifContent expected = expectedContent(oldBlock, parts);
        std::ranges::move(differences(expected, exifContent(newBlock), parts), std::back_inserter(m_receipt.losses));
        const std::size_t changed = changes(parts);
        m_receipt.changed += changed;
        m_receipt.unchanged += contentCount(expected) - std::min(changed, contentCount(expected));
    }

    static std::size_t changes(const std::vector<PartChange>& parts)
    {
        std::size_t count = 0;
        for (const PartChange& change : parts) {
            if (change.isAdded() || change.isDeleted() || change.bytesDiffer())
                ++count;
            if (!change.isDeleted())
                count += static_cast<std::size_t>(std::ranges::count(change.entries, false, &DocumentPair::isSame));
        }
        return count;
    }

    /// The document of the new file has to say what the one that was saved says.
    void compareParts(const std::vector<PartChange>& parts, const ConstXmlNode& found)
    {
        for (const ExifPart& part : kExifParts) {
            const auto change = std::ranges::find(parts, &part, &PartChange::part);
            ConstXmlNode expected = change != parts.end() ? change->after : ConstXmlNode();
            ConstXmlNode node = partNode(found, part);
            for (ConstXmlNode* each : {&expected, &node}) {
                if (part.kind == PartKind::Bytes && each->text().empty())
                    *each = {}; // which nobody can tell from none
            }
            const std::string name(part.element);
            if (!expected || !node) {
                if (expected || node)
                    lose({node ? Message::WouldBeNew : Message::WouldBeLost, name});
            } else if (part.kind == PartKind::Directory) {
                compareEntries(parts, *change, node);
            } else if (expected.text() != node.text()) {
                lose({Message::WouldDiffer, name});
            }
        }
    }

    void compareEntries(const std::vector<PartChange>& parts, const PartChange& change, const ConstXmlNode& found)
    {
        const std::vector<ExpectedEntry> expected = expectedEntries(parts, change);
        std::vector<ConstXmlNode> entries = found.childElements("IFD");
        std::erase_if(entries, [&](const ConstXmlNode& entry) { return isPlace(parts, tagOf(entry)); });
        std::ranges::stable_sort(entries, {}, tagOf);
        const std::string name(change.part->element);
        if (!std::ranges::equal(expected, entries, {}, &ExpectedEntry::tag, tagOf)) {
            lose({Message::WouldHaveOtherEntries, name});
            return;
        }
        for (std::size_t i = 0; i < expected.size(); ++i) {
            const ConstXmlNode& node = expected[i].node;
            const bool hasOwnBytes = expected[i].isEdited && mayReadDifferently(node);
            // What a full document shows as digits is a text when it can be, and the other way round.
            const bool hasOwnType = hasOwnBytes && readingOf(node) == Reading::Full;
            const bool isSame = (hasOwnType || AttributeGet(node, "d") == AttributeGet(entries[i], "d")) &&
                                (hasOwnBytes || node.text() == entries[i].text());
            if (!isSame && m_receipt.losses.empty())
                m_receipt.lostNode = NodeXPath(node);
            if (!isSame)
                lose({Message::WouldRead, name + " " + AttributeGet(node, "id"),
                      Phrase(entries[i].text()).shortened(kMostShown), Phrase(node.text()).shortened(kMostShown)});
        }
    }

    /// Whether an entry only says where a part stands that the saved document holds.
    static bool isPlace(const std::vector<PartChange>& parts, int tag)
    {
        return std::ranges::any_of(parts, [tag](const PartChange& change) {
            const ExifPart& part = *change.part;
            const bool leadsThere = tag != 0 && (tag == part.pointer.offset || tag == part.pointer.length ||
                                                 tag == part.strips.offset || tag == part.strips.length);
            return leadsThere && change.after;
        });
    }

    static std::vector<ExpectedEntry> expectedEntries(const std::vector<PartChange>& parts, const PartChange& change)
    {
        std::vector<ExpectedEntry> expected;
        for (const DocumentPair& pair : change.entries) {
            if (pair.isDeleted())
                continue;
            const ConstXmlNode& node = change.entriesAfter[*pair.after];
            if (!isPlace(parts, tagOf(node)))
                expected.push_back({tagOf(node), node, !pair.isSame});
        }
        // Entries of one tag are in the order of the file; new ones come last.
        std::ranges::stable_sort(expected, {}, &ExpectedEntry::tag);
        return expected;
    }

    /// Bytes of what was deleted or replaced stay where something else means them as well.
    void noteRemains(const TiffBlock& oldBlock, const TiffBlock& newBlock, const std::vector<PartChange>& parts)
    {
        const ShownExif shown(oldBlock, parts);
        for (const PartChange& change : parts) {
            const auto directory = shown.directoryOf(*change.part);
            for (const DocumentPair& pair : change.entries) {
                if (!directory || !pair.before || pair.isSame)
                    continue;
                const TiffEntry& entry = shown.directories()[*directory].entries[*pair.before];
                if (remains(oldBlock, newBlock, entry))
                    m_receipt.notes.emplace_back(Message::SharedBytes,
                                                 std::string(change.part->element) + " " + hexNumber(entry.tag, 4));
            }
        }
    }

    static bool remains(const TiffBlock& oldBlock, const TiffBlock& newBlock, const TiffEntry& entry)
    {
        const auto range = oldBlock.valueRange(entry);
        if (!range || !oldBlock.contains(*range) || !newBlock.contains(*range))
            return false;
        const auto first = oldBlock.bytes().begin() + range->first;
        const auto end = first + range->size;
        const bool isEmpty = std::find_if(first, end, [](std::uint8_t byte) { return byte != 0; }) == end;
        return !isEmpty && std::equal(first, end, newBlock.bytes().begin() + range->first);
    }

    /// Where in the old file ends what had to be kept.
    std::int64_t endOfKept()
    {
        if (m_end == ImageEnd::File)
            return m_oldFile.size();
        const auto end = scanData(m_oldFile, m_oldSegments.back().end()).end;
        m_receipt.changed += end && *end < m_oldFile.size() ? 1 : 0;
        return end.value_or(m_oldFile.size());
    }

    /// From the end of the scan header on.
    void compareImage()
    {
        const std::int64_t oldStart = m_oldSegments.back().end().value - 1;
        const std::int64_t newStart = m_newSegments.back().end().value - 1;
        const std::int64_t size = endOfKept() - oldStart;
        bool isSame = size == m_newFile.size() - newStart;
        constexpr std::int64_t kStretch = std::int64_t{64} * 1024;
        Bytes oldBytes(kStretch);
        Bytes newBytes(kStretch);
        for (std::int64_t done = 0; isSame && done < size; done += kStretch) {
            const std::span oldStretch =
                std::span(oldBytes).first(static_cast<std::size_t>(std::min(kStretch, size - done)));
            const std::size_t oldCount = m_oldFile.readAt(oldStart + done, oldStretch);
            const std::size_t newCount = m_newFile.readAt(newStart + done, newBytes);
            isSame = oldCount == newCount &&
                     std::equal(oldBytes.begin(), oldBytes.begin() + static_cast<std::ptrdiff_t>(oldCount),
                                newBytes.begin());
        }
        if (!isSame)
            lose({Message::WouldDiffer, Message::Picture});
    }

    /// AFCP data at the end of a file says absolute positions, which change with the length of the segments.
    void noteTrailer()
    {
        constexpr std::int64_t kTrailerSize = 12;
        const std::int64_t start = m_oldFile.size() - kTrailerSize;
        if (m_end != ImageEnd::File || start < 0)
            return;
        std::array<std::uint8_t, 3> mark{};
        m_oldFile.readAt(start, mark);
        if (mark == std::array<std::uint8_t, 3>{'A', 'X', 'S'} && m_oldFile.size() != m_newFile.size())
            m_receipt.notes.emplace_back(Message::TrailerPositions);
    }

    const InputFile& m_oldFile;
    const InputFile& m_newFile;
    ImageEnd m_end;
    std::vector<ConstXmlNode> m_before;
    std::vector<ConstXmlNode> m_after;
    std::vector<ConstXmlNode> m_found;
    std::vector<Segment> m_oldSegments;
    std::vector<Segment> m_newSegments;
    SaveReceipt m_receipt;
};

} // namespace

namespace {

struct Tenses {
    Message before;
    Message after;
};

constexpr Tenses kTenses[] = {
    {Message::WouldRead, Message::ReadsOther},
    {Message::WouldHaveType, Message::HasOtherType},
    {Message::WouldStandAt, Message::StandsElsewhere},
    {Message::WouldBeLost, Message::IsLost},
    {Message::WouldBeNew, Message::IsNew},
    {Message::WouldDiffer, Message::Differs},
    {Message::WouldHaveOtherLink, Message::HasOtherLink},
    {Message::WouldHaveOtherEntries, Message::HasOtherEntries},
    {Message::WouldHaveSegments, Message::HasOtherSegments},
};

/// A loss as it is said once the file has been saved.
Phrase afterTheFact(const Phrase& loss)
{
    const auto* row = std::ranges::find(kTenses, loss.message(), &Tenses::before);
    return row != std::end(kTenses) ? loss.as(row->after) : loss;
}

} // namespace

Phrase summary(const SaveReceipt& receipt)
{
    return {Message::ValuesChanged, receipt.changed, receipt.unchanged};
}

Phrase lossSummary(const SaveReceipt& receipt)
{
    Phrase losses = afterTheFact(receipt.losses.front());
    if (receipt.losses.size() > 1)
        losses = Phrase(Message::AndMore, losses, receipt.losses.size() - 1);
    switch (receipt.original) {
    case Original::Kept:
        return {Message::OriginalKept, losses, receipt.originalName};
    case Original::WasThere:
        return {Message::OriginalWasThere, losses, receipt.originalName};
    default:
        return losses;
    }
}

XmlDocument readBack(const std::string& newPath, const DocumentReader& read)
{
    XmlDocument document;
    ErrorTrap trap;
    trap.run([&] { document = read(newPath); });
    if (trap.pending() && !isOfSystem(trap.error()))
        throw Error{trap.error().number, {Message::NotReadBack, trap.error().description}};
    trap.raise();
    return document;
}

SaveReceipt compareVersions(const InputFile& oldFile, const InputFile& newFile, const std::string& newPath,
                            const XmlDocument& before, const XmlDocument& after, const DocumentReader& read,
                            ImageEnd end)
{
    const XmlDocument found = readBack(newPath, read);
    SaveReceipt receipt;
    ErrorTrap trap; // what cannot be compared may be lost
    trap.run([&] { receipt = Receipt(oldFile, newFile, before, after, end).compare(found); });
    if (trap.pending() && isOfSystem(trap.error()))
        trap.raise();
    if (trap.pending())
        receipt.losses.push_back(trap.take().description);
    return receipt;
}

} // namespace ovisto
