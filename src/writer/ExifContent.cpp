// SPDX-License-Identifier: MIT

#include "writer/ExifContent.h"

#include "common/Error.h"
#include "common/text/CodePage.h"
#include "common/text/Hex.h"
#include "common/text/Unicode.h"
#include "document/DataType.h"
#include "document/NodePath.h"
#include "document/TagNumbers.h"
#include "writer/ShownExif.h"

#include <algorithm>
#include <iterator>
#include <span>
#include <utility>

namespace ovisto {

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::size_t kMostWays = 300; // to directories; real files have some five
constexpr std::uint16_t kLongType = 4;
constexpr std::uint16_t kUndefinedType = 7;
constexpr std::string_view kFirstWay = "IFD0";
constexpr std::string_view kLink = "+";

bool isImageOffset(std::uint16_t tag)
{
    return std::ranges::find(kTiffImageTags, tag, &TiffImageTags::offsets) != std::end(kTiffImageTags);
}

/// Bytes of the numbers that a type consists of, which the byte order turns.
std::size_t numberSize(std::uint16_t type)
{
    const auto size = static_cast<std::size_t>(tiffTypeSize(type));
    const bool isFraction = type == kRational || type == kSignedRational;
    return isFraction ? size / 2 : size;
}

Bytes leastSignificantFirst(Bytes bytes, std::size_t size, bool littleEndian)
{
    if (littleEndian || size < 2)
        return bytes;
    for (auto first = bytes.begin(); static_cast<std::size_t>(bytes.end() - first) >= size;
         first += static_cast<std::ptrdiff_t>(size))
        std::reverse(first, first + static_cast<std::ptrdiff_t>(size));
    return bytes;
}

EntryContent contentOf(const TiffBlock& block, const TiffEntry& entry)
{
    EntryContent content{.tag = entry.tag, .type = entry.type, .count = entry.count};
    content.isPlace = leadsToDirectories(entry.tag, entry.type) || isImageOffset(entry.tag);
    if (content.isPlace)
        return content;
    const auto range = block.valueRange(entry);
    if (entry.tag == kMakerNote && range)
        content.makerNote = range->first;
    const bool isField = isFourByteTag(entry.tag) && !range;
    const auto value = isField ? std::nullopt : block.value(entry);
    // A value that is not in the block, or of an unknown type, is what stands in the entry.
    content.bytes = value ? leastSignificantFirst(*value, numberSize(entry.type), block.littleEndian())
                          : Bytes(entry.field.begin(), entry.field.end());
    return content;
}

/// Puts the entries of a directory into the order of their tags, which none of them depends on.
void sortByTag(std::vector<EntryContent>& entries)
{
    std::ranges::stable_sort(entries, {}, &EntryContent::tag);
}

/// Goes all ways from the header.
class ContentReading {
public:
    explicit ContentReading(const TiffBlock& block) : m_block(block) {}

    ExifContent read()
    {
        if (m_block.size() >= 8) {
            readHeader();
            visit({m_block.longAt(4)}, std::string(kFirstWay), true);
        }
        return std::move(m_content);
    }

private:
    void readHeader()
    {
        const Bytes& bytes = m_block.bytes();
        const bool isKnown = bytes[0] == bytes[1] && (bytes[0] == 'I' || bytes[0] == 'M');
        if (!isKnown)
            m_content.header = {bytes[0], bytes[1]};
        const std::uint16_t number = m_block.shortAt(2);
        m_content.header.push_back(static_cast<std::uint8_t>(number / 256));
        m_content.header.push_back(static_cast<std::uint8_t>(number % 256));
    }

    void visit(TiffOffset offset, const std::string& way, bool isInChain)
    {
        const auto directory = m_block.directoryAt(offset);
        if (!directory || std::ranges::find(m_onTheWay, offset) != m_onTheWay.end())
            return;
        if (m_content.directories.size() >= kMostWays)
            throw Error{kInvalidCall, Message::ExifRepeats};
        m_onTheWay.push_back(offset);
        readEntries(*directory, way);
        const std::string next = way + std::string(kLink);
        if (isInChain && directory->next.value != 0)
            visit(directory->next, next, true);
        if (!m_content.directories.contains(next))
            m_content.directories[way].link = static_cast<std::uint32_t>(directory->next.value);
        m_onTheWay.pop_back();
    }

    void readEntries(const TiffDirectory& directory, const std::string& way)
    {
        std::vector<EntryContent> entries;
        std::map<std::uint16_t, int> ordinals;
        for (const TiffEntry& entry : directory.entries) {
            entries.push_back(contentOf(m_block, entry));
            charge(entries.back().bytes.size());
            const int ordinal = ordinals[entry.tag]++;
            if (leadsToDirectories(entry.tag, entry.type))
                visitAll(entry,
                         way + "/" + hexNumber(entry.tag, 4) + (ordinal > 0 ? "." + std::to_string(ordinal) : ""));
        }
        sortByTag(entries);
        m_content.directories[way].entries = std::move(entries);
        for (const TiffImageTags& tags : kTiffImageTags)
            readImage(directory, tags, way);
    }

    void visitAll(const TiffEntry& entry, const std::string& way)
    {
        const std::vector<std::uint32_t> offsets = m_block.integers(entry, kMostWays);
        for (std::size_t i = 0; i < offsets.size(); ++i) {
            if (offsets[i] != 0)
                visit({offsets[i]}, way + (i > 0 ? ":" + std::to_string(i) : ""), false);
        }
    }

    void readImage(const TiffDirectory& directory, const TiffImageTags& tags, const std::string& way)
    {
        Bytes image;
        for (const TiffRange& range : m_block.imageRanges(directory, tags)) {
            if (!m_block.contains(range))
                return;
            charge(static_cast<std::size_t>(range.size));
            const auto first = m_block.bytes().begin() + range.first;
            image.insert(image.end(), first, first + range.size);
        }
        if (!image.empty())
            m_content.images.emplace(way + "/" + hexNumber(tags.offsets, 4), std::move(image));
    }

    /// Bounds what directories that all claim the same bytes can cost.
    void charge(std::size_t bytes)
    {
        constexpr std::size_t kMostBytes = std::size_t{8} * 1024 * 1024;
        m_bytes += bytes;
        if (m_bytes > kMostBytes)
            throw Error{kInvalidCall, Message::ExifRepeats};
    }

    const TiffBlock& m_block;
    ExifContent m_content;
    std::vector<TiffOffset> m_onTheWay;
    std::size_t m_bytes = 0;
};

/// The ways to the parts that a document shows.
class ShownWays {
public:
    explicit ShownWays(const std::vector<PartChange>& parts) : m_parts(parts) {}

    /// The way to a directory, or for an image to the entry that leads to it.
    std::string way(const ExifPart& part) const
    {
        if (part.parent.empty())
            return std::string(kFirstWay);
        const ExifPart* from = exifPart(part.pointedFrom);
        if (part.pointer.offset == 0)
            return way(*from) + std::string(kLink);
        const auto followed = followedEntry(m_parts, part);
        if (!followed)
            return way(*from) + "/" + hexNumber(part.pointer.offset, 4);
        const PartChange& directory = m_parts[followed->part];
        const std::string id = AttributeGet(directory.entriesBefore[followed->entry], "id");
        const auto ordinal =
            std::count_if(directory.entriesBefore.begin(),
                          directory.entriesBefore.begin() + static_cast<std::ptrdiff_t>(followed->entry),
                          [&](const ConstXmlNode& entry) { return AttributeGet(entry, "id") == id; });
        return way(*directory.part) + "/" + id + (ordinal > 0 ? "." + std::to_string(ordinal) : "");
    }

private:
    const std::vector<PartChange>& m_parts;
};

/// Applies changes to a content.
class ContentChange {
public:
    ContentChange(const TiffBlock& old, const std::vector<PartChange>& parts)
        : m_old(old), m_parts(parts), m_shown(old, parts), m_ways(parts), m_content(exifContent(old))
    {
    }

    ExifContent changed()
    {
        for (const PartChange& change : m_parts) {
            if (change.isDeleted())
                erase(m_ways.way(*change.part));
            else if (change.part->kind == PartKind::Directory)
                applyEntries(change);
        }
        for (const PartChange& change : m_parts) {
            if (change.part->kind == PartKind::Bytes && !change.isDeleted())
                applyBytes(change);
        }
        return std::move(m_content);
    }

private:
    /// What a way leads to, and all that is reached through it.
    void erase(const std::string& way)
    {
        const auto isThere = [&](const auto& each) {
            return each.first == way || (each.first.starts_with(way) && isContinuation(each.first[way.size()]));
        };
        std::erase_if(m_content.directories, isThere);
        std::erase_if(m_content.images, isThere);
    }

    static bool isContinuation(char character) { return character == '/' || character == '+' || character == ':'; }

    void applyEntries(const PartChange& change)
    {
        const std::string way = m_ways.way(*change.part);
        const bool isSame = !change.isAdded() && std::ranges::all_of(change.entries, &DocumentPair::isSame);
        if (isSame)
            return;
        std::vector<EntryContent>& entries = m_content.directories[way].entries;
        std::vector<std::size_t> places = placesOf(change, entries);
        std::vector<bool> isErased(entries.size());
        std::vector<EntryContent> added;
        for (const DocumentPair& pair : change.entries) {
            if (pair.isDeleted()) {
                isErased[places[*pair.before]] = true;
                eraseTarget(change, *pair.before, way);
            } else if (pair.isAdded()) {
                added.push_back(addedEntry(change.entriesAfter[*pair.after]));
            } else if (!pair.isSame) {
                changeEntry(entries[places[*pair.before]], change, pair);
            }
        }
        std::vector<EntryContent> kept;
        for (std::size_t i = 0; i < entries.size(); ++i) {
            if (!isErased[i])
                kept.push_back(std::move(entries[i]));
        }
        std::ranges::move(added, std::back_inserter(kept));
        sortByTag(kept);
        entries = std::move(kept);
        eraseImages(way);
    }

    static Error notInBlock(const PartChange& change)
    {
        return {kInvalidCall, {Message::InContext, std::string(change.part->element), Message::DirectoryNotRead}};
    }

    /// Where each entry that a document shows stands among those in the order of their tags.
    static std::vector<std::size_t> placesOf(const PartChange& change, const std::vector<EntryContent>& entries)
    {
        std::map<int, std::size_t> next;
        std::vector<std::size_t> places;
        for (const ConstXmlNode& entry : change.entriesBefore) {
            const int tag = Hex4ToLong(AttributeGet(entry, "id"));
            const auto first =
                std::ranges::lower_bound(entries, tag, {}, [](const EntryContent& each) { return int{each.tag}; });
            const auto place = static_cast<std::size_t>(first - entries.begin()) + next[tag]++;
            if (place >= entries.size() || entries[place].tag != tag)
                throw notInBlock(change);
            places.push_back(place);
        }
        return places;
    }

    /// What an entry leads to is deleted with it.
    void eraseTarget(const PartChange& change, std::size_t index, const std::string& way)
    {
        const std::string id = AttributeGet(change.entriesBefore[index], "id");
        erase(way + "/" + id);
    }

    /// An image needs both of the entries that lead to it.
    void eraseImages(const std::string& way)
    {
        const std::vector<EntryContent>& entries = m_content.directories[way].entries;
        for (const TiffImageTags& tags : kTiffImageTags) {
            if (std::ranges::find(entries, tags.offsets, &EntryContent::tag) == entries.end() ||
                std::ranges::find(entries, tags.lengths, &EntryContent::tag) == entries.end())
                m_content.images.erase(way + "/" + hexNumber(tags.offsets, 4));
        }
    }

    EntryContent withValue(std::uint16_t tag, const TiffValue& value) const
    {
        EntryContent content{.tag = tag, .type = value.type, .count = value.count};
        content.isPlace = isPlaceOfAdded(tag) || isImageOffset(tag);
        if (!content.isPlace)
            content.bytes = leastSignificantFirst(value.bytes, numberSize(value.type), m_old.littleEndian());
        if (isFourByteTag(tag) && content.bytes.size() < static_cast<std::size_t>(kValueFieldSize))
            content.bytes.resize(static_cast<std::size_t>(kValueFieldSize)); // of which the whole field counts
        return content;
    }

    EntryContent addedEntry(const ConstXmlNode& entry) const
    {
        const auto tag = static_cast<std::uint16_t>(Hex4ToLong(AttributeGet(entry, "id")));
        if (isPlaceOfAdded(tag))
            return {.tag = tag, .type = kLongType, .count = 1, .isPlace = true};
        return withValue(tag, newValue(m_old, entry));
    }

    /// Whether an entry comes with a part that was added.
    bool isPlaceOfAdded(std::uint16_t tag) const
    {
        return std::ranges::any_of(m_parts, [tag](const PartChange& change) {
            return change.isAdded() && tag != 0 && tag == change.part->pointer.offset;
        });
    }

    void changeEntry(EntryContent& content, const PartChange& change, const DocumentPair& pair) const
    {
        if (isPlaceOfAdded(content.tag)) {
            content = {.tag = content.tag, .type = kLongType, .count = 1, .isPlace = true};
            return;
        }
        const auto directory = m_shown.directoryOf(*change.part);
        if (!directory)
            throw notInBlock(change);
        const TiffEntry& old = m_shown.directories()[*directory].entries[*pair.before];
        content = withValue(content.tag, changedValue(m_old, change.entriesBefore[*pair.before],
                                                      change.entriesAfter[*pair.after], old));
    }

    void applyBytes(const PartChange& change)
    {
        if (!change.isAdded() && !change.bytesDiffer())
            return;
        const ExifPart& part = *change.part;
        const std::string way = m_ways.way(part);
        const std::string directory = way.substr(0, way.rfind('/'));
        const Bytes bytes = hexRunBytes(change.after.text());
        const auto count = static_cast<std::uint32_t>(bytes.size());
        if (part.pointer.length == 0) {
            setEntry(directory, {.tag = part.pointer.offset,
                                 .type = kUndefinedType,
                                 .count = count,
                                 .bytes = bytes,
                                 .makerNote = EntryContent::kAnywhere});
            return;
        }
        m_content.images.erase(way);
        if (!bytes.empty())
            m_content.images[way] = bytes;
        setEntry(directory, {.tag = part.pointer.offset, .type = kLongType, .count = 1, .isPlace = true});
        setEntry(directory, {.tag = part.pointer.length, .type = kLongType, .count = 1, .bytes = longBytes(count)});
    }

    static Bytes longBytes(std::uint32_t number)
    {
        Bytes bytes;
        for (int shift = 0; shift < 32; shift += 8)
            bytes.push_back(static_cast<std::uint8_t>(number >> shift));
        return bytes;
    }

    void setEntry(const std::string& way, EntryContent content)
    {
        std::vector<EntryContent>& entries = m_content.directories[way].entries;
        const auto there = std::ranges::find(entries, content.tag, &EntryContent::tag);
        if (there != entries.end())
            *there = std::move(content);
        else
            entries.push_back(std::move(content));
        sortByTag(entries);
    }

    const TiffBlock& m_old;
    const std::vector<PartChange>& m_parts;
    ShownExif m_shown;
    ShownWays m_ways;
    ExifContent m_content;
};

std::string numberText(std::span<const std::uint8_t> bytes)
{
    std::uint64_t number = 0;
    for (std::size_t i = bytes.size(); i-- > 0;)
        number = 256 * number + bytes[i];
    return std::to_string(number);
}

std::string numbersText(const EntryContent& entry)
{
    const std::size_t size = numberSize(entry.type);
    const bool isFraction = entry.type == kRational || entry.type == kSignedRational;
    std::string text;
    for (std::size_t i = 0; (i + 1) * size <= entry.bytes.size(); ++i) {
        if (i > 0)
            text += isFraction && i % 2 != 0 ? "/" : ",";
        text += numberText(std::span(entry.bytes).subspan(i * size, size));
    }
    return text;
}

/// The value for people, cut where it is long.
std::string valueText(const EntryContent& entry)
{
    constexpr std::size_t kMostCharacters = 60;
    std::string text;
    if (entry.type == kString)
        appendCharacters(text, entry.bytes, ControlBytes::Drop);
    else if (numberSize(entry.type) > 1)
        text = numbersText(entry);
    else
        appendHexRun(text, entry.bytes);
    if (characterCount(text) <= kMostCharacters)
        return text;
    std::string shortened;
    for (const char32_t character : characters(text).substr(0, kMostCharacters))
        appendCharacter(shortened, character);
    return shortened + "...";
}

/// How `found` differs from `expected`, which has the same tag.
Phrase difference(const std::string& name, const EntryContent& expected, const EntryContent& found)
{
    if (expected.type != found.type || expected.count != found.count)
        return {Message::WouldHaveType,        name,
                std::to_string(found.type),    std::to_string(found.count),
                std::to_string(expected.type), std::to_string(expected.count)};
    if (expected.bytes == found.bytes)
        return {Message::WouldStandAt, name, std::to_string(found.makerNote), std::to_string(expected.makerNote)};
    return {Message::WouldRead, name, valueText(found), valueText(expected)};
}

/// Collects what differs, directory by directory.
class Comparison {
public:
    explicit Comparison(const std::vector<PartChange>& parts) : m_parts(parts), m_ways(parts) {}

    std::vector<Phrase> compare(const ExifContent& expected, const ExifContent& found)
    {
        static const DirectoryContent kNone;
        if (expected.header != found.header)
            m_differences.emplace_back(Message::WouldDiffer, Message::ExifHeader);
        for (const auto& [way, directory] : expected.directories) {
            const auto other = found.directories.find(way);
            if (other == found.directories.end())
                m_differences.emplace_back(Message::WouldBeLost, name(way));
            else if (directory.link != other->second.link)
                m_differences.emplace_back(Message::WouldHaveOtherLink, name(way));
            compareEntries(name(way), directory.entries,
                           other != found.directories.end() ? other->second.entries : kNone.entries);
        }
        for (const auto& [way, directory] : found.directories) {
            if (!expected.directories.contains(way))
                m_differences.emplace_back(Message::WouldBeNew, name(way));
        }
        compareImages(expected, found);
        return std::move(m_differences);
    }

private:
    /// Directories are called as in the document; those that it does not show by the way that leads there.
    std::string name(const std::string& way) const
    {
        for (const PartChange& change : m_parts) {
            if (change.part->kind == PartKind::Directory && m_ways.way(*change.part) == way)
                return std::string(change.part->element);
        }
        return way;
    }

    void compareEntries(const std::string& directory, const std::vector<EntryContent>& expected,
                        const std::vector<EntryContent>& found)
    {
        auto e = expected.begin();
        auto f = found.begin();
        while (e != expected.end() || f != found.end()) {
            if (f == found.end() || (e != expected.end() && e->tag < f->tag))
                m_differences.emplace_back(Message::WouldBeLost, directory + " " + hexNumber(e++->tag, 4));
            else if (e == expected.end() || f->tag < e->tag)
                m_differences.emplace_back(Message::WouldBeNew, directory + " " + hexNumber(f++->tag, 4));
            else {
                if (!(*e == *f))
                    m_differences.push_back(difference(directory + " " + hexNumber(e->tag, 4), *e, *f));
                ++e;
                ++f;
            }
        }
    }

    void compareImages(const ExifContent& expected, const ExifContent& found)
    {
        const auto compareOne = [&](const std::string& way, const Bytes* one, const Bytes* other) {
            const Message what = other == nullptr ? Message::WouldBeLost
                                 : one == nullptr ? Message::WouldBeNew
                                                  : Message::WouldDiffer;
            if (one == nullptr || other == nullptr || *one != *other)
                m_differences.emplace_back(what, Phrase(Message::ImageAt, way));
        };
        for (const auto& [way, image] : expected.images) {
            const auto other = found.images.find(way);
            compareOne(way, &image, other != found.images.end() ? &other->second : nullptr);
        }
        for (const auto& [way, image] : found.images) {
            if (!expected.images.contains(way))
                compareOne(way, nullptr, &image);
        }
    }

    const std::vector<PartChange>& m_parts;
    ShownWays m_ways;
    std::vector<Phrase> m_differences;
};

} // namespace

bool EntryContent::operator==(const EntryContent& other) const
{
    if (tag != other.tag || isPlace != other.isPlace || count != other.count)
        return false;
    const bool isSamePlace = makerNote == kAnywhere || other.makerNote == kAnywhere || makerNote == other.makerNote;
    return type == other.type && (isPlace || (bytes == other.bytes && isSamePlace));
}

ExifContent exifContent(const TiffBlock& block)
{
    return ContentReading(block).read();
}

ExifContent expectedContent(const TiffBlock& old, const std::vector<PartChange>& parts)
{
    return ContentChange(old, parts).changed();
}

std::vector<Phrase> differences(const ExifContent& expected, const ExifContent& found,
                                const std::vector<PartChange>& parts)
{
    return Comparison(parts).compare(expected, found);
}

std::size_t contentCount(const ExifContent& content)
{
    std::size_t count = content.images.size();
    for (const auto& [way, directory] : content.directories)
        count += directory.entries.size();
    return count;
}

} // namespace ovisto
