// SPDX-License-Identifier: MIT

#include "writer/ExifPatch.h"

#include "common/Error.h"
#include "common/text/Hex.h"
#include "common/text/NumberText.h"
#include "document/DataType.h"
#include "document/NodePath.h"
#include "document/TagNumbers.h"
#include "writer/AboutNode.h"
#include "writer/ByteClaims.h"
#include "writer/EntryBytes.h"
#include "writer/ShownExif.h"

#include <algorithm>
#include <array>
#include <functional>
#include <optional>
#include <string>
#include <utility>

namespace ovisto {

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::int64_t kHeaderSize = 8;
constexpr std::size_t kFieldSize = 4;
constexpr std::uint16_t kLongType = 4;
constexpr std::uint16_t kUndefinedType = 7;

/// An entry as it is going to be.
struct Slot {
    TiffEntry entry;
    std::optional<std::size_t> oldEntry{}; ///< its index in the old directory
    Bytes outside{};                       ///< a value that is still to be placed
    std::optional<TiffRange> oldPlace{};   ///< where that stood
};

/// A directory as it is going to be.
struct PatchedDirectory {
    TiffDirectory old{};
    std::size_t references = 0; ///< ways that still lead to the old one
    bool isNew = false;         ///< there is no old one
    bool isGivenBack = false;   ///< the bytes of the old one are not claimed any more
    bool isShared = false;      ///< something else claims some bytes of the old one
    bool isDeleted = false;
    bool isChanged = false; ///< it has to be written
    bool isPlaced = false;  ///< `place` is decided
    std::vector<Slot> slots{};
    TiffOffset place{};
    TiffOffset next{};

    std::int64_t size() const { return directorySize(slots.size()); }
    std::int64_t oldSize() const { return isNew ? 0 : old.range().size; }
};

/// A thumbnail that was added or changed.
struct PatchedImage {
    const ExifPart* part;
    std::size_t directory; ///< the one with the entries that lead to it
    Bytes bytes;
    std::optional<TiffRange> oldPlace;
};

/// The error of a node that cannot be changed.
Error failure(const ExifPart& part, const std::string& tag, const Error& reason)
{
    const std::string node = std::string(part.element) + (tag.empty() ? "" : " " + tag);
    return {reason.number, {Message::InContext, node, reason.description}};
}

Error failure(const ExifPart& part, const std::string& tag, Message reason)
{
    return failure(part, tag, Error{kInvalidCall, reason});
}

/// Texts and numbers do not hold offsets of their own, so that they may be moved.
bool isMovable(std::uint16_t type)
{
    constexpr std::array<std::uint16_t, 9> kMovableTypes = {2, 3, 4, 5, 8, 9, 10, 13, 129};
    return std::ranges::find(kMovableTypes, type) != kMovableTypes.end();
}

void setValue(Slot& slot, TiffValue value)
{
    slot.entry.type = value.type;
    slot.entry.count = value.count;
    slot.entry.field = {};
    slot.outside.clear();
    if (value.bytes.size() <= slot.entry.field.size())
        std::ranges::copy(value.bytes, slot.entry.field.begin());
    else
        slot.outside = std::move(value.bytes);
}

/// Before the first entry with a greater tag. Entries from one of tag 0 on are not read, so that it ends there.
void insertSlot(PatchedDirectory& directory, Slot slot)
{
    const auto next = std::ranges::find_if(
        directory.slots, [&](const Slot& other) { return other.entry.tag > slot.entry.tag || other.entry.tag == 0; });
    directory.slots.insert(next, std::move(slot));
    directory.isChanged = true;
}

Slot* slotOf(PatchedDirectory& directory, std::uint16_t tag)
{
    const auto slot = std::ranges::find(directory.slots, tag, [](const Slot& each) { return each.entry.tag; });
    return slot != directory.slots.end() ? &*slot : nullptr;
}

/// What is done to zeros at the end of the block that nothing claims.
enum class Padding { Keep, Use };

/// Makes changes to the structure of one block. First they are made to its directories in memory, which tells what is
/// released; then what is new gets its places; then it is written.
class Patch {
public:
    Patch(const TiffBlock& old, const std::vector<PartChange>& parts, Leftovers leftovers)
        : m_old(old), m_parts(parts), m_leftovers(leftovers), m_shown(old, parts), m_claims(old.size()),
          m_bytes(old.bytes())
    {
        for (const TiffDirectory& directory : m_shown.directories())
            m_directories.push_back(unchanged(directory));
        claimAll();
    }

    Bytes patched(Padding padding)
    {
        for (const PartChange& change : m_parts)
            apply(change);
        giveBackImages();
        giveBackDirectories();
        m_claims.settle();
        releaseLeftovers();
        if (padding == Padding::Use)
            releasePadding();
        clearReleased();
        placeDirectories();
        placeImages();
        placeValues();
        writeDirectories();
        return std::move(m_bytes);
    }

private:
    static PatchedDirectory unchanged(const TiffDirectory& directory)
    {
        PatchedDirectory patched{.old = directory, .references = directory.references.size()};
        for (std::size_t i = 0; i < directory.entries.size(); ++i)
            patched.slots.push_back({.entry = directory.entries[i], .oldEntry = i});
        patched.place = directory.offset;
        patched.next = directory.next;
        return patched;
    }

    // Whose the bytes are

    void claimAll()
    {
        // Each sound value has bytes of its own.
        constexpr std::int64_t kMostRepeats = 64;
        std::int64_t valueBytes = 0;
        m_claims.claim({0, kHeaderSize}, 1);
        for (const PatchedDirectory& directory : m_directories) {
            claim(directory, static_cast<int>(directory.references));
            for (const TiffEntry& entry : directory.old.entries)
                valueBytes += std::min(tiffValueSize(entry), m_old.size());
        }
        if (valueBytes > kMostRepeats * kMostExifBytes)
            throw Error{kInvalidCall, Message::ExifRepeats};
        m_claims.settle();
    }

    /// Claims, or gives back, what belongs to a directory and to its entries.
    void claim(const PatchedDirectory& directory, int count)
    {
        m_claims.claim(directory.old.range(), count);
        for (const TiffEntry& entry : directory.old.entries)
            claimValue(entry, count);
        for (const TiffImageTags& tags : kTiffImageTags)
            claimImage(directory, tags, count);
    }

    void claimImage(const PatchedDirectory& directory, const TiffImageTags& tags, int count)
    {
        for (const TiffRange& range : m_old.imageRanges(directory.old, tags))
            m_claims.claim(range, count);
    }

    void claimValue(const TiffEntry& entry, int count)
    {
        if (const auto range = m_old.valueRange(entry))
            m_claims.claim(*range, count);
    }

    /// Has `use` called with the index of each directory that `leads` picks a reference to, once a reference.
    void forEachTarget(const std::function<bool(const TiffReference&)>& leads,
                       const std::function<void(std::size_t)>& use)
    {
        for (std::size_t target = 0; target < m_directories.size(); ++target) {
            const auto count = std::ranges::count_if(m_directories[target].old.references, leads);
            for (std::ptrdiff_t i = 0; i < count; ++i)
                use(target);
        }
    }

    /// One way less leads to a directory. After the last one, all that it leads to is deleted with it.
    void dropReference(std::size_t index)
    {
        PatchedDirectory& directory = m_directories[index];
        if (directory.references == 0)
            return;
        claim(directory, -1);
        if (--directory.references > 0)
            return;
        directory.isDeleted = true;
        forEachTarget(
            [index](const TiffReference& reference) {
                return reference.kind != TiffReference::Kind::Header && reference.directory == index;
            },
            [this](std::size_t target) { dropReference(target); });
    }

    // The changes, made to the directories in memory

    void apply(const PartChange& change)
    {
        const bool isFirst = change.part->parent.empty();
        if (change.isDeleted())
            remove(change);
        else if (change.part->kind == PartKind::Bytes)
            aboutNode(change.after, [&] { applyBytes(change); });
        else if (change.isAdded() && !isFirst)
            addDirectory(change);
        if (change.part->kind == PartKind::Directory && !change.isDeleted())
            applyEntries(change);
    }

    /// What an entry leads to is deleted with the entry, which the changes of its directory say. This is for a
    /// directory that another one links to.
    void remove(const PartChange& change)
    {
        if (change.part->kind != PartKind::Directory || change.part->pointer.offset != 0)
            return;
        const auto first = indexOf(*exifPart(change.part->pointedFrom));
        if (!first)
            throw failure(*change.part, "", Message::DirectoryNotRead);
        m_directories[*first].next = {};
        m_directories[*first].isChanged = true;
        forEachTarget(
            [first](const TiffReference& reference) {
                return reference.kind == TiffReference::Kind::Link && reference.directory == *first;
            },
            [this](std::size_t target) { dropReference(target); });
    }

    void applyEntries(const PartChange& change)
    {
        if (std::ranges::all_of(change.entries, &DocumentPair::isSame))
            return;
        const auto index = indexOf(*change.part);
        if (!index)
            throw failure(*change.part, "", Message::DirectoryNotRead);
        for (const DocumentPair& pair : change.entries) {
            if (pair.isDeleted())
                deleteEntry(*index, *pair.before);
            else if (!pair.isSame)
                aboutNode(change.entriesAfter[*pair.after], [&] { putEntry(*index, change, pair); });
        }
    }

    void putEntry(std::size_t index, const PartChange& change, const DocumentPair& pair)
    {
        if (pair.isAdded())
            addEntry(index, change, change.entriesAfter[*pair.after]);
        else
            changeEntry(index, change, pair);
    }

    /// The directory of a part: that in the old block, or the one that was added for it.
    std::optional<std::size_t> indexOf(const ExifPart& part) const
    {
        const auto added = std::ranges::find(m_added, &part, &std::pair<const ExifPart*, std::size_t>::first);
        return added != m_added.end() ? std::optional(added->second) : m_shown.directoryOf(part);
    }

    /// Whether an entry only leads to a part that was added, which says what becomes of it.
    bool leadsToAdded(std::uint16_t tag) const
    {
        return std::ranges::any_of(m_parts, [tag](const PartChange& change) {
            const PartPointer& pointer = change.part->pointer;
            return change.isAdded() && tag != 0 && (tag == pointer.offset || tag == pointer.length);
        });
    }

    static void checkIsNoPointer(const PartChange& change, std::uint16_t tag, std::uint16_t type)
    {
        if (leadsToDirectories(tag, type))
            throw failure(*change.part, hexNumber(tag, 4), Message::EntryIsPlace);
        if (tag == kMakerNote && type == kUndefinedType)
            throw failure(*change.part, hexNumber(tag, 4), Message::EntryIsPlace);
    }

    void changeEntry(std::size_t index, const PartChange& change, const DocumentPair& pair)
    {
        PatchedDirectory& directory = m_directories[index];
        const ConstXmlNode& after = change.entriesAfter[*pair.after];
        Slot& slot = *std::ranges::find(directory.slots, pair.before, [](const Slot& each) { return each.oldEntry; });
        if (leadsToAdded(slot.entry.tag))
            return;
        checkIsNoPointer(change, slot.entry.tag, slot.entry.type);
        TiffValue value;
        ErrorTrap trap;
        trap.run([&] { value = changedValue(m_old, change.entriesBefore[*pair.before], after, slot.entry); });
        if (trap.pending())
            throw failure(*change.part, AttributeGet(after, "id"), trap.error());
        replaceValue(slot, std::move(value));
        directory.isChanged = true;
    }

    void replaceValue(Slot& slot, TiffValue value)
    {
        claimValue(slot.entry, -1);
        slot.oldPlace = m_old.valueRange(slot.entry);
        setValue(slot, std::move(value));
    }

    void deleteEntry(std::size_t index, std::size_t entryIndex)
    {
        PatchedDirectory& directory = m_directories[index];
        claimValue(directory.old.entries[entryIndex], -1);
        std::erase_if(directory.slots, [&](const Slot& slot) { return slot.oldEntry == entryIndex; });
        directory.isChanged = true;
        forEachTarget(
            [&](const TiffReference& reference) {
                return reference.kind == TiffReference::Kind::Entry && reference.directory == index &&
                       reference.entry == entryIndex;
            },
            [this](std::size_t target) { dropReference(target); });
    }

    void addEntry(std::size_t index, const PartChange& change, const ConstXmlNode& entry)
    {
        const auto tag = static_cast<std::uint16_t>(Hex4ToLong(AttributeGet(entry, "id")));
        if (leadsToAdded(tag))
            return;
        TiffValue value;
        ErrorTrap trap;
        trap.run([&] { value = newValue(m_old, entry); });
        if (trap.pending())
            throw failure(*change.part, AttributeGet(entry, "id"), trap.error());
        checkIsNoPointer(change, tag, value.type);
        Slot slot{.entry = {.tag = tag}};
        setValue(slot, std::move(value));
        insertSlot(m_directories[index], std::move(slot));
    }

    void addDirectory(const PartChange& change)
    {
        const ExifPart& part = *change.part;
        const auto from = indexOf(*exifPart(part.pointedFrom));
        if (!from || m_shown.leadsToUnshown(part))
            throw failure(part, "", Message::DirectoryNotShown);
        m_added.emplace_back(&part, m_directories.size());
        m_directories.push_back({.isNew = true, .isChanged = true});
        m_directories[*from].isChanged = true;
        if (part.pointer.offset != 0)
            pointerSlot(*from, part.pointer.offset);
    }

    /// The entry of a directory that says where something stands, made where it is missing.
    Slot& pointerSlot(std::size_t index, std::uint16_t tag)
    {
        PatchedDirectory& directory = m_directories[index];
        if (slotOf(directory, tag) == nullptr)
            insertSlot(directory, {.entry = {.tag = tag, .type = kLongType, .count = 1}});
        directory.isChanged = true;
        return *slotOf(directory, tag);
    }

    void applyBytes(const PartChange& change)
    {
        if (!change.isAdded() && !change.bytesDiffer())
            return;
        const ExifPart& part = *change.part;
        const auto pointer = m_shown.pointerTo(part);
        const auto from = change.isAdded() ? indexOf(*exifPart(part.pointedFrom))
                          : pointer        ? std::optional(pointer->directory)
                                           : std::nullopt;
        if (!from)
            throw failure(part, "", Message::DirectoryNotRead);
        Bytes bytes;
        ErrorTrap trap;
        trap.run([&] { bytes = digitBytes(change.after.text()); });
        if (trap.pending())
            throw failure(part, "", trap.error());
        if (part.pointer.length == 0)
            changeMakerNote(part, *from, std::move(bytes));
        else
            changeImage(change, *from, std::move(bytes));
    }

    void changeMakerNote(const ExifPart& part, std::size_t from, Bytes bytes)
    {
        Slot& slot = pointerSlot(from, part.pointer.offset);
        const auto count = static_cast<std::uint32_t>(bytes.size());
        if (count > 0 && count <= slot.entry.field.size())
            throw failure(part, "", Message::TooFewBytes);
        replaceValue(slot, {kUndefinedType, count, std::move(bytes)});
    }

    void changeImage(const PartChange& change, std::size_t from, Bytes bytes)
    {
        const ExifPart& part = *change.part;
        const auto range = change.isAdded() ? std::nullopt : m_shown.imageRange(part);
        if (!change.isAdded() && !range)
            throw failure(part, "", Message::ThumbnailInStrips);
        if (range)
            m_claims.claim(*range, -1);
        pointerSlot(from, part.pointer.offset);
        pointerSlot(from, part.pointer.length);
        m_images.push_back({&part, from, std::move(bytes), range});
    }

    // Room

    /// An image goes with the entries that lead to it.
    void giveBackImages()
    {
        for (PatchedDirectory& directory : m_directories) {
            if (directory.isDeleted || directory.isNew)
                continue;
            for (const TiffImageTags& tags : kTiffImageTags) {
                if (slotOf(directory, tags.offsets) == nullptr || slotOf(directory, tags.lengths) == nullptr)
                    claimImage(directory, tags, -1);
            }
        }
    }

    /// A directory whose bytes also mean something else is written anew, and the old bytes stay for that; one that
    /// becomes shorter leaves its end.
    void giveBackDirectories()
    {
        for (PatchedDirectory& directory : m_directories) {
            directory.isShared = !directory.isNew && !m_claims.isUnshared(directory.old.range());
            if (!directory.isChanged || directory.isNew || directory.isDeleted)
                continue;
            const std::int64_t kept = directory.isShared ? 0 : directory.size();
            directory.isGivenBack = directory.isShared;
            if (kept < directory.oldSize())
                m_claims.claim({directory.old.offset.value + kept, directory.oldSize() - kept}, -1);
        }
    }

    bool hasMakerNote() const
    {
        return std::ranges::any_of(m_directories, [](const PatchedDirectory& directory) {
            return !directory.isDeleted &&
                   std::ranges::any_of(directory.slots, [](const Slot& slot) { return slot.entry.tag == kMakerNote; });
        });
    }

    /// Nothing but a maker note leads to bytes that nothing claims, so they go with the last one, and where
    /// that is asked for.
    void releaseLeftovers()
    {
        const bool hadMakerNote = std::ranges::any_of(m_shown.directories(), [](const TiffDirectory& directory) {
            return std::ranges::find(directory.entries, kMakerNote, &TiffEntry::tag) != directory.entries.end();
        });
        const bool isWanted = hadMakerNote || m_leftovers == Leftovers::Clear;
        if (isWanted && !hasMakerNote() && m_shown.isComplete())
            m_claims.releaseUnclaimed({0, m_claims.size()});
    }

    void releasePadding()
    {
        std::int64_t first = m_claims.size();
        while (first > 0 && m_claims.at(first - 1) == 0 && m_bytes[static_cast<std::size_t>(first) - 1] == 0)
            --first;
        m_claims.releaseUnclaimed({first, m_claims.size() - first});
    }

    void clearReleased()
    {
        for (const TiffRange& range : m_claims.released())
            std::fill_n(m_bytes.begin() + range.first, range.size, std::uint8_t{0});
        m_bytes.resize(m_bytes.size() - static_cast<std::size_t>(m_claims.cut()));
    }

    /// Gives `range` its claim back and clears what nothing else claims.
    void giveBack(const TiffRange& range)
    {
        m_claims.claim(range, -1);
        m_claims.settle();
        clearReleased();
    }

    void take(const TiffRange& range)
    {
        if (range.end() > m_claims.size()) {
            m_claims.extend(range.end() - m_claims.size());
            m_bytes.resize(static_cast<std::size_t>(range.end()));
        }
        m_claims.take(range);
    }

    /// Takes `size` bytes: in the old place, in the smallest stretch of room, or at the end.
    TiffRange allocate(std::int64_t size, const std::optional<TiffRange>& oldPlace)
    {
        TiffRange range{m_claims.size() + m_claims.size() % 2, size};
        if (oldPlace && oldPlace->size >= size && m_claims.isReleased(TiffRange{oldPlace->first, size}))
            range.first = oldPlace->first;
        else if (const auto room = m_claims.room(size))
            range = *room;
        take(range);
        return range;
    }

    // Places

    /// Directories that lead to a moved one change as well, so this goes on until none is left.
    void placeDirectories()
    {
        for (;;) {
            const auto next = std::ranges::find_if(m_directories, [](const PatchedDirectory& directory) {
                return directory.isChanged && !directory.isPlaced && !directory.isDeleted;
            });
            if (next == m_directories.end())
                return;
            place(*next);
        }
    }

    void place(PatchedDirectory& directory)
    {
        directory.isPlaced = true;
        const bool canStay = !directory.isNew && !directory.isShared;
        if (canStay && (directory.size() <= directory.oldSize() || grow(directory)))
            return;
        if (!directory.isNew && !directory.isGivenBack)
            giveBack(directory.old.range());
        directory.place.value = allocate(directory.size(), std::nullopt).first;
        setPlace(directory);
    }

    /// Enters the new place of a directory where it is reached from.
    void setPlace(const PatchedDirectory& directory)
    {
        const auto index = static_cast<std::size_t>(&directory - m_directories.data());
        const auto offset = static_cast<std::uint32_t>(directory.place.value);
        for (const PartChange& change : m_parts) {
            const ExifPart& part = *change.part;
            if (part.kind != PartKind::Directory || change.isDeleted() || indexOf(part) != index)
                continue;
            if (part.parent.empty()) {
                const auto field = m_old.field(offset);
                std::ranges::copy(field, m_bytes.begin() + kFieldSize);
                continue;
            }
            const auto pointer = m_shown.pointerTo(part);
            const std::size_t from =
                pointer && change.before ? pointer->directory : *indexOf(*exifPart(part.pointedFrom));
            m_directories[from].isChanged = true;
            if (part.pointer.offset == 0)
                m_directories[from].next.value = offset;
            else
                setNumber(pointerSlot(from, part.pointer.offset), offset);
        }
    }

    /// Enters a place or a length; a field type that has room for one stays.
    void setNumber(Slot& slot, std::uint32_t number) const
    {
        constexpr std::int64_t kLongSize = 4;
        if (tiffTypeSize(slot.entry.type) != kLongSize)
            slot.entry.type = kLongType;
        slot.entry.count = 1;
        slot.entry.field = m_old.field(number);
    }

    /// Makes room for a directory that has become longer where it stands: by values after it that can be moved.
    bool grow(PatchedDirectory& directory)
    {
        const TiffRange extension{directory.old.range().end(), directory.size() - directory.oldSize()};
        const auto inTheWay = valuesIn(extension);
        std::int64_t covered = 0;
        for (const auto& [owner, slot] : inTheWay) {
            const TiffRange range = *m_old.valueRange(slot->entry);
            if (!isMovable(slot->entry.type) || !canMove(*owner, range))
                return false;
            covered += std::min(range.end(), extension.end()) - std::max(range.first, extension.first);
        }
        if (covered != claimedIn(extension) || !isRestUsable(extension))
            return false;
        for (const auto& [owner, slot] : inTheWay) {
            m_claims.claim(*m_old.valueRange(slot->entry), -1);
            slot->outside = *m_old.value(slot->entry);
            owner->isChanged = true;
        }
        m_claims.settle();
        clearReleased();
        take({directory.old.offset.value, directory.size()});
        return true;
    }

    using OwnedSlot = std::pair<PatchedDirectory*, Slot*>;

    /// The values that stand in `range` and stay as they are.
    std::vector<OwnedSlot> valuesIn(const TiffRange& range)
    {
        std::vector<OwnedSlot> values;
        for (PatchedDirectory& directory : m_directories) {
            for (Slot& slot : directory.slots) {
                const auto place = slot.outside.empty() && !directory.isDeleted && slot.oldEntry
                                       ? m_old.valueRange(slot.entry)
                                       : std::nullopt;
                if (place && place->first < range.end() && range.first < place->end())
                    values.emplace_back(&directory, &slot);
            }
        }
        return values;
    }

    bool canMove(const PatchedDirectory& owner, const TiffRange& value) const
    {
        return value.end() <= m_claims.size() && m_claims.isUnshared(value) && !owner.isShared && owner.references == 1;
    }

    /// Bytes of `range` that something claims; more than there are when some have more than one claim.
    std::int64_t claimedIn(const TiffRange& range) const
    {
        std::int64_t claimed = 0;
        for (std::int64_t i = range.first; i < std::min(range.end(), m_claims.size()); ++i)
            claimed += m_claims.at(i);
        return claimed;
    }

    /// Bytes that nothing claims are used only when they are zeros and no maker note could lead to them.
    bool isRestUsable(const TiffRange& range) const
    {
        const bool mayBeUsed = m_shown.isComplete() && !hasMakerNote();
        for (std::int64_t i = range.first; i < std::min(range.end(), m_claims.size()); ++i) {
            const bool isUnknown = m_claims.at(i) == 0 && !m_claims.isReleased(i);
            if (isUnknown && (!mayBeUsed || m_bytes[static_cast<std::size_t>(i)] != 0))
                return false;
        }
        return true;
    }

    void placeImages()
    {
        for (const PatchedImage& image : m_images) {
            const TiffRange range = image.bytes.empty()
                                        ? TiffRange()
                                        : allocate(static_cast<std::int64_t>(image.bytes.size()), image.oldPlace);
            std::ranges::copy(image.bytes, m_bytes.begin() + range.first);
            const PartPointer& pointer = image.part->pointer;
            setNumber(pointerSlot(image.directory, pointer.offset), static_cast<std::uint32_t>(range.first));
            setNumber(pointerSlot(image.directory, pointer.length), static_cast<std::uint32_t>(range.size));
        }
    }

    /// New values come last: when they are deleted again, the end of the block goes with them.
    void placeValues()
    {
        for (const bool isNew : {false, true}) {
            for (PatchedDirectory& directory : m_directories) {
                for (Slot& slot : directory.slots) {
                    if (!slot.outside.empty() && slot.oldEntry.has_value() != isNew && !directory.isDeleted)
                        placeValue(slot);
                }
            }
        }
    }

    void placeValue(Slot& slot)
    {
        const TiffRange range = allocate(static_cast<std::int64_t>(slot.outside.size()), slot.oldPlace);
        std::ranges::copy(slot.outside, m_bytes.begin() + range.first);
        slot.entry.field = m_old.field(static_cast<std::uint32_t>(range.first));
    }

    void writeDirectories()
    {
        for (const PatchedDirectory& directory : m_directories) {
            if (!directory.isChanged || directory.isDeleted)
                continue;
            Bytes bytes;
            m_old.appendNumber(bytes, static_cast<std::uint32_t>(directory.slots.size()), 2);
            for (const Slot& slot : directory.slots) {
                m_old.appendNumber(bytes, slot.entry.tag, 2);
                m_old.appendNumber(bytes, slot.entry.type, 2);
                m_old.appendNumber(bytes, slot.entry.count, 4);
                bytes.insert(bytes.end(), slot.entry.field.begin(), slot.entry.field.end());
            }
            m_old.appendNumber(bytes, static_cast<std::uint32_t>(directory.next.value), 4);
            std::ranges::copy(bytes, m_bytes.begin() + directory.place.value);
        }
    }

    const TiffBlock& m_old;
    const std::vector<PartChange>& m_parts;
    Leftovers m_leftovers;
    ShownExif m_shown;
    ByteClaims m_claims;
    Bytes m_bytes;
    std::vector<PatchedDirectory> m_directories; ///< those of the old block in its order, then new ones
    std::vector<std::pair<const ExifPart*, std::size_t>> m_added;
    std::vector<PatchedImage> m_images;
};

} // namespace

std::vector<std::uint8_t> patchedExif(const TiffBlock& old, const std::vector<PartChange>& parts, Leftovers leftovers)
{
    Bytes bytes = Patch(old, parts, leftovers).patched(Padding::Keep);
    if (static_cast<std::int64_t>(bytes.size()) > kMostExifBytes)
        bytes = Patch(old, parts, leftovers).patched(Padding::Use);
    const auto size = static_cast<std::int64_t>(bytes.size());
    if (size > kMostExifBytes)
        throw Error{kOverflow, {Message::ExifTooLong, size - kMostExifBytes}};
    return bytes;
}

} // namespace ovisto
