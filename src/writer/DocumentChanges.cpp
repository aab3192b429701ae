// SPDX-License-Identifier: MIT

#include "writer/DocumentChanges.h"

#include "common/Error.h"
#include "common/system/Interruption.h"
#include "common/text/Hex.h"
#include "common/text/NumberText.h"
#include "common/text/Splitting.h"
#include "document/DataType.h"
#include "document/NodePath.h"
#include "document/TagNumbers.h"
#include "writer/PlainSegment.h"

#include <algorithm>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace ovisto {

namespace {

/// An Exif segment has no room for more.
constexpr std::size_t kMostEntries = 65'535 / 12;

/// What is compared of an element: whether it says the same, and whether it could have become another one.
struct Identity {
    std::string whole;
    std::string name;
};

using Identities = std::vector<Identity>;

/// The lengths of the longest common subsequences of all ends of two runs.
class CommonLengths {
public:
    CommonLengths(const Identities& before, const Identities& after, std::size_t start, std::size_t beforeEnd,
                  std::size_t afterEnd)
        : m_start(start), m_columns(afterEnd - start + 1), m_lengths((beforeEnd - start + 1) * m_columns)
    {
        for (std::size_t b = beforeEnd; b-- > start;) {
            for (std::size_t a = afterEnd; a-- > start;)
                at(b, a) =
                    before[b].whole == after[a].whole ? at(b + 1, a + 1) + 1 : std::max(at(b + 1, a), at(b, a + 1));
        }
    }

    std::uint32_t& at(std::size_t b, std::size_t a) { return m_lengths[(b - m_start) * m_columns + (a - m_start)]; }

private:
    std::size_t m_start;
    std::size_t m_columns;
    std::vector<std::uint32_t> m_lengths;
};

/// Finds what corresponds: equal ones by a longest common subsequence, those left over by name, in order.
class Pairing {
public:
    Pairing(const Identities& before, const Identities& after)
        : m_before(before), m_after(after), m_partners(after.size()), m_taken(before.size())
    {
        pairEqual();
        pairByName();
    }

    std::vector<DocumentPair> pairs() const
    {
        std::vector<DocumentPair> pairs;
        for (std::size_t a = 0; a < m_after.size(); ++a) {
            const auto partner = m_partners[a];
            pairs.push_back({partner, a, partner && m_before[*partner].whole == m_after[a].whole});
        }
        for (std::size_t b = 0; b < m_before.size(); ++b) {
            if (!m_taken[b])
                pairs.push_back({b, std::nullopt, false});
        }
        return pairs;
    }

private:
    void pair(std::size_t b, std::size_t a)
    {
        m_partners[a] = b;
        m_taken[b] = true;
    }

    bool isEqual(std::size_t b, std::size_t a) const { return m_before[b].whole == m_after[a].whole; }

    void pairEqual()
    {
        std::size_t start = 0;
        std::size_t beforeEnd = m_before.size();
        std::size_t afterEnd = m_after.size();
        for (; start < std::min(beforeEnd, afterEnd) && isEqual(start, start); ++start)
            pair(start, start);
        while (beforeEnd > start && afterEnd > start && isEqual(beforeEnd - 1, afterEnd - 1))
            pair(--beforeEnd, --afterEnd);
        // A file of very many segments that were all moved about is paired by name alone.
        constexpr std::size_t kMostSteps = 4'000'000;
        if ((beforeEnd - start) * (afterEnd - start) > kMostSteps)
            return;
        CommonLengths lengths(m_before, m_after, start, beforeEnd, afterEnd);
        for (std::size_t b = start, a = start; b < beforeEnd && a < afterEnd;) {
            if (isEqual(b, a))
                pair(b++, a++);
            else if (lengths.at(b + 1, a) >= lengths.at(b, a + 1))
                ++b;
            else
                ++a;
        }
    }

    void pairByName()
    {
        std::map<std::string_view, std::vector<std::size_t>> left; // by name, the last one first
        for (std::size_t b = m_before.size(); b-- > 0;) {
            if (!m_taken[b])
                left[m_before[b].name].push_back(b);
        }
        for (std::size_t a = 0; a < m_after.size(); ++a) {
            const auto found = left.find(m_after[a].name);
            if (m_partners[a] || found == left.end() || found->second.empty())
                continue;
            pair(found->second.back(), a);
            found->second.pop_back();
        }
    }

    const Identities& m_before;
    const Identities& m_after;
    std::vector<std::optional<std::size_t>> m_partners; // of each in `after`
    std::vector<bool> m_taken;                          // whether one in `before` has a partner
};

/// All that a saved document says of an element and those below it.
std::string wholeText(const ConstXmlNode& element, LongLoop& elements)
{
    elements.step();
    std::string text = element.name();
    for (const char* attribute : {"id", "ns", "d"})
        text.append("\n").append(AttributeGet(element, attribute));
    const std::vector<ConstXmlNode> children = element.childElements();
    if (children.empty())
        return text.append("\n").append(element.name() == "Exif1" ? app1Text(element) : element.text());
    for (const ConstXmlNode& child : children)
        text.append("\n").append(wholeText(child, elements));
    return text;
}

/// What a segment has in common with the one that it was before an edit. An Exif element that was deleted and created
/// anew has no data type, other than the one that was read: nothing of the old segment is to be kept for it.
std::string segmentName(const ConstXmlNode& segment)
{
    const std::string created = segment.name() == "Exif" && AttributeGet(segment, "d").empty() ? "\ncreated" : "";
    return segment.name() + "\n" + AttributeGet(segment, "id") + created;
}

Identities segmentIdentities(const std::vector<ConstXmlNode>& segments)
{
    Identities identities;
    LongLoop elements;
    for (const ConstXmlNode& segment : segments)
        identities.push_back({wholeText(segment, elements), segmentName(segment)});
    return identities;
}

Identities entryIdentities(const std::vector<ConstXmlNode>& entries, const std::vector<PartChange>& parts)
{
    Identities identities;
    for (const ConstXmlNode& entry : entries) {
        const std::string id = AttributeGet(entry, "id");
        const std::string text = saysPlace(parts, Hex4ToLong(id)) ? std::string() : entry.text();
        std::string whole = id;
        whole.append("\n").append(AttributeGet(entry, "d")).append("\n").append(text);
        identities.push_back({std::move(whole), id});
    }
    return identities;
}

bool isOneOf(int tag, const PartPointer& pointer)
{
    return tag != 0 && (tag == pointer.offset || tag == pointer.length);
}

int tagOf(const ConstXmlNode& entry)
{
    return Hex4ToLong(AttributeGet(entry, "id"));
}

/// Whether a reader takes the text of an entry for the place of a part. The text counts, as it does for the reader.
bool leadsTo(const ConstXmlNode& entry, const ExifPart& part)
{
    const int tag = tagOf(entry);
    if (tag != part.pointer.offset && (tag != part.strips.offset || part.strips.offset == 0))
        return false;
    ErrorTrap trap;
    trap.run([&] {
        if (tag == kMakerNote && dataTypeOf(entry) != kUndefined)
            throw systemError(kTypeMismatch);
        const bool isImage = part.pointer.length != 0;
        const std::string text = entry.text();
        toLong(isImage ? split(text, ',').front() : std::string_view(text));
    });
    return !trap.pending();
}

PartChange* partIn(std::vector<PartChange>& parts, std::string_view element)
{
    const auto found = std::ranges::find(parts, element, [](const PartChange& each) { return each.part->element; });
    return found != parts.end() ? &*found : nullptr;
}

/// Has the entries that lead to a deleted part deleted with it.
void deletePointers(std::vector<PartChange>& parts, const PartChange& change)
{
    const auto followed = followedEntry(parts, *change.part);
    if (!followed)
        return;
    PartChange& directory = parts[followed->part];
    for (DocumentPair& pair : directory.entries) {
        const int tag = pair.before ? tagOf(directory.entriesBefore[*pair.before]) : 0;
        if (isOneOf(tag, change.part->pointer) || isOneOf(tag, change.part->strips))
            pair = {pair.before, std::nullopt, false};
    }
}

/// Whether the entry that leads to a part was deleted.
bool isPointerDeleted(const std::vector<PartChange>& parts, const ExifPart& part)
{
    const auto followed = followedEntry(parts, part);
    if (!followed)
        return false;
    const std::vector<DocumentPair>& pairs = parts[followed->part].entries;
    return std::ranges::any_of(
        pairs, [&](const DocumentPair& pair) { return pair.before == followed->entry && pair.isDeleted(); });
}

/// A part and what leads to it are there together, or not at all.
void deleteTogether(std::vector<PartChange>& parts)
{
    for (PartChange& change : parts) {
        const PartChange* parent = partIn(parts, change.part->parent);
        const bool lostParent = parent != nullptr && parent->isDeleted();
        if (lostParent || (change.before && change.after && isPointerDeleted(parts, *change.part)))
            change.after = {};
        if (change.isDeleted())
            deletePointers(parts, change);
    }
}

} // namespace

std::optional<EntryPlace> followedEntry(const std::vector<PartChange>& parts, const ExifPart& part)
{
    std::optional<EntryPlace> followed;
    if (part.pointer.offset == 0)
        return followed;
    for (std::size_t p = 0; p < parts.size(); ++p) {
        if (parts[p].part->reading == Reading::Full)
            continue; // a reader follows no entries from there
        for (std::size_t e = 0; e < parts[p].entriesBefore.size(); ++e) {
            if (leadsTo(parts[p].entriesBefore[e], part))
                followed = EntryPlace{p, e};
        }
        if (parts[p].part->element == part.pointedFrom)
            break;
    }
    return followed;
}

std::vector<ConstXmlNode> segmentElements(const ConstXmlNode& root)
{
    std::vector<ConstXmlNode> segments = root.childElements();
    std::erase_if(segments, [](const ConstXmlNode& element) { return element.name() == "IMG"; });
    return segments;
}

std::vector<DocumentPair> segmentPairs(const std::vector<ConstXmlNode>& before, const std::vector<ConstXmlNode>& after)
{
    const Identities identitiesBefore = segmentIdentities(before);
    const Identities identitiesAfter = segmentIdentities(after);
    return Pairing(identitiesBefore, identitiesAfter).pairs();
}

bool PartChange::bytesDiffer() const
{
    return part->kind == PartKind::Bytes && before && after && before.text() != after.text();
}

std::vector<PartChange> partChanges(const ConstXmlNode& exifBefore, const ConstXmlNode& exifAfter)
{
    std::vector<PartChange> parts;
    for (const ExifPart& part : kExifParts) {
        PartChange change{.part = &part, .before = partNode(exifBefore, part), .after = partNode(exifAfter, part)};
        if (change.before || change.after)
            parts.push_back(std::move(change));
    }
    for (PartChange& change : parts) {
        if (change.part->kind != PartKind::Directory)
            continue;
        change.entriesBefore = change.before.childElements("IFD");
        change.entriesAfter = change.after.childElements("IFD");
        if (change.entriesAfter.size() > kMostEntries)
            throw Error{kOverflow, Message::SegmentTooLong};
        const Identities before = entryIdentities(change.entriesBefore, parts);
        const Identities after = entryIdentities(change.entriesAfter, parts);
        change.entries = Pairing(before, after).pairs();
    }
    deleteTogether(parts);
    return parts;
}

bool saysPlace(const std::vector<PartChange>& parts, int tag)
{
    return std::ranges::any_of(parts, [&](const PartChange& change) {
        const ExifPart& part = *change.part;
        const bool isPlace = tag != 0 && (tag == part.pointer.offset || tag == part.pointer.length ||
                                          tag == part.strips.offset || tag == part.strips.length);
        return isPlace && change.before && change.after;
    });
}

bool differs(const std::vector<PartChange>& parts)
{
    return std::ranges::any_of(parts, [](const PartChange& change) {
        return change.isAdded() || change.isDeleted() || change.bytesDiffer() ||
               !std::ranges::all_of(change.entries, &DocumentPair::isSame);
    });
}

} // namespace ovisto
