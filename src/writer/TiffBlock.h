// SPDX-License-Identifier: MIT

#pragma once

#include "jpeg/FilePosition.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace ovisto {

/// Bytes from `first` on; counted from the TIFF header, whose first byte is 0.
struct TiffRange {
    std::int64_t first = 0;
    std::int64_t size = 0;

    std::int64_t end() const { return first + size; }
    bool operator==(const TiffRange&) const = default;
};

/// One entry of a directory as it stands in a block.
struct TiffEntry {
    std::uint16_t tag = 0;
    std::uint16_t type = 0;  ///< TIFF field type
    std::uint32_t count = 0; ///< how many values it says it has
    std::array<std::uint8_t, 4> field{};

    bool operator==(const TiffEntry&) const = default;
};

/// Bytes of one value of a field type (TIFF 6.0, Exif 3.0); 0 for an unknown type.
std::int64_t tiffTypeSize(std::uint16_t type);

/// Bytes of the whole value of `entry`; 0 for an unknown type.
std::int64_t tiffValueSize(const TiffEntry& entry);

/// Whether an entry of this tag and type holds the offsets of further directories.
bool leadsToDirectories(std::uint16_t tag, std::uint16_t type);

/// The entries of a directory that say where an image is, and how long.
struct TiffImageTags {
    std::uint16_t offsets;
    std::uint16_t lengths;
};

/// Thumbnail, strips and tiles (TIFF 6.0).
inline constexpr TiffImageTags kTiffImageTags[] = {{0x0201, 0x0202}, {0x0111, 0x0117}, {0x0144, 0x0145}};

/// What leads to a directory: the header, the link of another directory, or an item of an entry.
struct TiffReference {
    enum class Kind { Header, Link, Entry };

    Kind kind = Kind::Header;
    std::size_t directory = 0; ///< index of the directory that the link or the entry belongs to
    std::size_t entry = 0;     ///< index of the entry
    std::size_t item = 0;      ///< index of the offset in its value
};

struct TiffDirectory {
    TiffOffset offset;
    std::vector<TiffEntry> entries;
    TiffOffset next;     ///< of the directory that its link names; 0 for none
    bool hasLink = true; ///< false for one at the very end of the block, where the link is missing
    std::string path;    ///< by what it is reached first: "IFD0", "IFD0/8769", "IFD0+1" for the one that IFD0 links to
    std::vector<TiffReference> references; ///< all that leads to it; at least one

    TiffRange range() const;
};

/// Bytes of a directory of `entries` entries, with its link.
constexpr std::int64_t directorySize(std::size_t entries)
{
    return 2 + 12 * static_cast<std::int64_t>(entries) + 4;
}

/// The TIFF structure of an Exif segment: what follows its identifier. It is read as it stands; nothing outside the
/// block counts.
class TiffBlock {
public:
    explicit TiffBlock(std::vector<std::uint8_t> bytes);

    /// A little-endian block with an empty first directory.
    static TiffBlock empty();

    bool littleEndian() const { return m_littleEndian; }
    const std::vector<std::uint8_t>& bytes() const { return m_bytes; }
    std::int64_t size() const { return static_cast<std::int64_t>(m_bytes.size()); }

    std::uint16_t shortAt(std::int64_t offset) const { return static_cast<std::uint16_t>(numberAt(offset, 2)); }
    std::uint32_t longAt(std::int64_t offset) const { return static_cast<std::uint32_t>(numberAt(offset, 4)); }
    /// The number in a field of an entry.
    std::uint32_t longIn(const std::array<std::uint8_t, 4>& field) const { return numberIn(field); }

    /// `number` in the byte order of the block.
    void appendNumber(std::vector<std::uint8_t>& bytes, std::uint32_t number, std::size_t size) const;
    std::array<std::uint8_t, 4> field(std::uint32_t number) const;

    /// Where the value of `entry` stands when it does not fit into the entry; it may lie past the end of the block.
    /// None for one in the entry and for one of an unknown type.
    std::optional<TiffRange> valueRange(const TiffEntry& entry) const;

    /// The bytes of the value of `entry`, wherever it stands; none when they are not all in the block, or the type is
    /// unknown.
    std::optional<std::vector<std::uint8_t>> value(const TiffEntry& entry) const;

    /// The unsigned integers of the value of `entry`, up to `most`; empty when it has another type or is not all in the
    /// block.
    std::vector<std::uint32_t> integers(const TiffEntry& entry, std::size_t most) const;

    /// The directory at `offset`; none when it is not in the block or has more than 200 entries.
    std::optional<TiffDirectory> directoryAt(TiffOffset offset) const;

    /// All directories that can be reached from the header, each once: the first one, those that it links to, and those
    /// that entries lead to. `complete` becomes false when there are more than 100, or one could not be read.
    std::vector<TiffDirectory> directories(bool& complete) const;

    /// Where the image stands that two entries of `directory` name: more than one range for strips and tiles.
    std::vector<TiffRange> imageRanges(const TiffDirectory& directory, const TiffImageTags& tags) const;

    bool contains(const TiffRange& range) const { return range.first >= 0 && range.end() <= size(); }

private:
    std::uint32_t numberIn(std::span<const std::uint8_t> bytes) const;
    std::uint32_t numberAt(std::int64_t offset, std::size_t size) const;

    std::vector<std::uint8_t> m_bytes;
    bool m_littleEndian;
};

} // namespace ovisto
