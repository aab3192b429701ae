// SPDX-License-Identifier: MIT

#include "writer/ShownExif.h"

#include "common/text/Hex.h"
#include "document/NodePath.h"

#include <algorithm>

namespace ovisto {

ShownExif::ShownExif(const TiffBlock& block, const std::vector<PartChange>& parts)
    : m_block(block), m_parts(parts), m_directories(block.directories(m_isComplete))
{
    for (const PartChange& change : parts) {
        if (change.part->kind == PartKind::Directory)
            locate(change);
    }
}

void ShownExif::locate(const PartChange& change)
{
    const bool isFirst = change.part->parent.empty();
    if (!isFirst && !change.before)
        return;
    const auto offset = isFirst && m_block.size() >= 8 ? TiffOffset{m_block.longAt(4)} : offsetOf(*change.part);
    const auto found = std::ranges::find(
        m_directories, offset, [](const TiffDirectory& directory) { return std::optional(directory.offset); });
    if (offset && found != m_directories.end() && hasEntries(*found, change))
        m_located.push_back({change.part, static_cast<std::size_t>(found - m_directories.begin())});
}

/// What an entry or a link says of the place of a directory.
std::optional<TiffOffset> ShownExif::offsetOf(const ExifPart& part) const
{
    if (const auto pointer = pointerTo(part)) {
        const std::vector<std::uint32_t> offsets =
            m_block.integers(m_directories[pointer->directory].entries[pointer->entry], 1);
        return offsets.empty() ? std::nullopt : std::optional(TiffOffset{offsets.front()});
    }
    const ExifPart* from = exifPart(part.pointedFrom);
    const auto directory = from != nullptr && part.pointer.offset == 0 ? directoryOf(*from) : std::nullopt;
    return directory ? std::optional(m_directories[*directory].next) : std::nullopt;
}

/// Entries from one of tag 0 on are not shown, except where 0 is a tag.
bool ShownExif::hasEntries(const TiffDirectory& directory, const PartChange& change) const
{
    const std::vector<ConstXmlNode>& entries = change.entriesBefore;
    const auto end =
        change.part->hasTagZero ? directory.entries.end() : std::ranges::find(directory.entries, 0, &TiffEntry::tag);
    return std::ranges::equal(directory.entries.begin(), end, entries.begin(), entries.end(),
                              [](const TiffEntry& entry, const ConstXmlNode& node) {
                                  return AttributeGet(node, "id") == hexNumber(entry.tag, 4);
                              });
}

std::optional<std::size_t> ShownExif::directoryOf(const ExifPart& part) const
{
    const auto found = std::ranges::find(m_located, &part, &Located::part);
    return found != m_located.end() ? std::optional(found->directory) : std::nullopt;
}

std::optional<ShownExif::Pointer> ShownExif::pointerTo(const ExifPart& part) const
{
    const auto followed = followedEntry(m_parts, part);
    const auto directory = followed ? directoryOf(*m_parts[followed->part].part) : std::nullopt;
    return directory ? std::optional(Pointer{*directory, followed->entry}) : std::nullopt;
}

std::optional<TiffRange> ShownExif::imageRange(const ExifPart& part) const
{
    const auto pointer = pointerTo(part);
    if (!pointer)
        return std::nullopt;
    const std::vector<TiffEntry>& entries = m_directories[pointer->directory].entries;
    const TiffEntry& offset = entries[pointer->entry];
    const auto length = std::ranges::find(entries, part.pointer.length, &TiffEntry::tag);
    if (offset.tag != part.pointer.offset || length == entries.end())
        return std::nullopt;
    const std::vector<std::uint32_t> first = m_block.integers(offset, 1);
    const std::vector<std::uint32_t> size = m_block.integers(*length, 1);
    if (first.empty() || size.empty())
        return std::nullopt;
    return TiffRange{first.front(), size.front()};
}

bool ShownExif::leadsToUnshown(const ExifPart& part) const
{
    const ExifPart* from = exifPart(part.pointedFrom);
    const auto index = from != nullptr ? directoryOf(*from) : std::nullopt;
    if (!index)
        return false; // it is made together with the part
    const TiffDirectory& directory = m_directories[*index];
    if (part.pointer.offset == 0)
        return directory.next.value != 0;
    return std::ranges::any_of(directory.entries, [&](const TiffEntry& entry) {
        return entry.tag == part.pointer.offset && m_block.longIn(entry.field) != 0;
    });
}

} // namespace ovisto
