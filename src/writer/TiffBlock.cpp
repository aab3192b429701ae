// SPDX-License-Identifier: MIT

#include "writer/TiffBlock.h"

#include "common/text/Hex.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>
#include <utility>

namespace ovisto {

namespace {

constexpr std::size_t kMostDirectories = 100;
constexpr std::size_t kMostEntries = 200;  // more means that this is no directory, as in the reader
constexpr std::size_t kMostStrips = 20000; // as many as a block has room for
constexpr std::size_t kEntrySize = 12;
constexpr std::int64_t kHeaderSize = 8;
constexpr std::int64_t kFieldSize = 4;

constexpr std::uint16_t kShortType = 3;
constexpr std::uint16_t kLongType = 4;
constexpr std::uint16_t kSignedLongType = 9;
constexpr std::uint16_t kIfdType = 13;

struct TypeSize {
    std::uint16_t type;
    std::int64_t size;
};

// TIFF 6.0; 13 is IFD of the TIFF technical notes, 129 UTF-8 of Exif 3.0.
constexpr TypeSize kTypeSizes[] = {{1, 1}, {2, 1}, {3, 2},  {4, 4},  {5, 8},  {6, 1},  {7, 1},
                                   {8, 2}, {9, 4}, {10, 8}, {11, 4}, {12, 8}, {13, 4}, {129, 1}};

// Exif, GPS, interoperability, sub-images, global parameters.
constexpr std::uint16_t kDirectoryTags[] = {0x8769, 0x8825, 0xA005, 0x014A, 0x0190};

bool isInteger(std::uint16_t type)
{
    return type == kShortType || type == kLongType || type == kSignedLongType || type == kIfdType;
}

} // namespace

std::int64_t tiffTypeSize(std::uint16_t type)
{
    const auto* row = std::ranges::find(kTypeSizes, type, &TypeSize::type);
    return row != std::end(kTypeSizes) ? row->size : 0;
}

std::int64_t tiffValueSize(const TiffEntry& entry)
{
    return tiffTypeSize(entry.type) * entry.count;
}

bool leadsToDirectories(std::uint16_t tag, std::uint16_t type)
{
    return type == kIfdType || (std::ranges::find(kDirectoryTags, tag) != std::end(kDirectoryTags) && isInteger(type));
}

TiffRange TiffDirectory::range() const
{
    return {offset.value, directorySize(entries.size()) - (hasLink ? 0 : kFieldSize)};
}

// Whatever is not "II" counts as the other order, as in the reader.
TiffBlock::TiffBlock(std::vector<std::uint8_t> bytes)
    : m_bytes(std::move(bytes)), m_littleEndian(m_bytes.size() >= 2 && m_bytes[0] == 'I' && m_bytes[1] == 'I')
{
}

TiffBlock TiffBlock::empty()
{
    return TiffBlock({'I', 'I', 42, 0, 8, 0, 0, 0, 0, 0, 0, 0, 0, 0});
}

std::uint32_t TiffBlock::numberIn(std::span<const std::uint8_t> bytes) const
{
    std::uint32_t number = 0;
    for (std::size_t i = 0; i < bytes.size(); ++i)
        number = 256 * number + bytes[m_littleEndian ? bytes.size() - 1 - i : i];
    return number;
}

std::uint32_t TiffBlock::numberAt(std::int64_t offset, std::size_t size) const
{
    return numberIn(std::span(m_bytes).subspan(static_cast<std::size_t>(offset), size));
}

void TiffBlock::appendNumber(std::vector<std::uint8_t>& bytes, std::uint32_t number, std::size_t size) const
{
    for (std::size_t i = 0; i < size; ++i)
        bytes.push_back(static_cast<std::uint8_t>(number >> (8 * (m_littleEndian ? i : size - 1 - i))));
}

std::array<std::uint8_t, 4> TiffBlock::field(std::uint32_t number) const
{
    std::vector<std::uint8_t> bytes;
    appendNumber(bytes, number, 4);
    return {bytes[0], bytes[1], bytes[2], bytes[3]};
}

std::optional<TiffRange> TiffBlock::valueRange(const TiffEntry& entry) const
{
    const std::int64_t size = tiffValueSize(entry);
    if (size <= kFieldSize)
        return std::nullopt;
    return TiffRange{longIn(entry.field), size};
}

std::optional<std::vector<std::uint8_t>> TiffBlock::value(const TiffEntry& entry) const
{
    if (tiffTypeSize(entry.type) == 0)
        return std::nullopt;
    const auto range = valueRange(entry);
    if (!range) {
        const auto size = static_cast<std::ptrdiff_t>(tiffValueSize(entry));
        return std::vector<std::uint8_t>(entry.field.begin(), entry.field.begin() + size);
    }
    if (!contains(*range))
        return std::nullopt;
    return std::vector<std::uint8_t>(m_bytes.begin() + range->first, m_bytes.begin() + range->end());
}

std::vector<std::uint32_t> TiffBlock::integers(const TiffEntry& entry, std::size_t most) const
{
    const auto range = valueRange(entry);
    if (!isInteger(entry.type) || (range && !contains(*range)))
        return {};
    const std::span<const std::uint8_t> field(entry.field);
    const std::span<const std::uint8_t> value =
        range ? std::span(m_bytes).subspan(static_cast<std::size_t>(range->first)) : field;
    const auto size = static_cast<std::size_t>(tiffTypeSize(entry.type));
    std::vector<std::uint32_t> numbers(std::min<std::size_t>(entry.count, most));
    for (std::size_t i = 0; i < numbers.size(); ++i)
        numbers[i] = static_cast<std::uint32_t>(numberIn(value.subspan(i * size, size)));
    return numbers;
}

std::optional<TiffDirectory> TiffBlock::directoryAt(TiffOffset offset) const
{
    if (!contains({offset.value, 2}))
        return std::nullopt;
    const std::size_t count = shortAt(offset.value);
    if (count > kMostEntries || !contains({offset.value, directorySize(count) - kFieldSize}))
        return std::nullopt;
    TiffDirectory directory{.offset = offset, .entries = {}, .next = {}, .path = {}, .references = {}};
    directory.hasLink = contains(directory.range()) && contains({offset.value, directorySize(count)});
    for (std::size_t i = 0; i < count; ++i) {
        const std::int64_t place = offset.value + 2 + static_cast<std::int64_t>(i * kEntrySize);
        TiffEntry entry{.tag = shortAt(place), .type = shortAt(place + 2), .count = longAt(place + 4)};
        std::copy_n(m_bytes.begin() + place + 8, entry.field.size(), entry.field.begin());
        directory.entries.push_back(entry);
    }
    if (directory.hasLink)
        directory.next.value = longAt(offset.value + 2 + static_cast<std::int64_t>(count * kEntrySize));
    return directory;
}

std::vector<TiffDirectory> TiffBlock::directories(bool& complete) const
{
    std::vector<TiffDirectory> found;
    std::unordered_map<std::int64_t, std::size_t> byOffset;
    const auto visit = [&](TiffOffset offset, const std::string& path, const TiffReference& reference) {
        if (const auto known = byOffset.find(offset.value); known != byOffset.end()) {
            found[known->second].references.push_back(reference);
            return;
        }
        auto directory = found.size() < kMostDirectories ? directoryAt(offset) : std::nullopt;
        complete = complete && directory.has_value();
        if (!directory)
            return;
        directory->path = path;
        directory->references.push_back(reference);
        byOffset.emplace(offset.value, found.size());
        found.push_back(std::move(*directory));
    };

    complete = size() >= kHeaderSize;
    if (!complete)
        return found;
    visit({longAt(4)}, "IFD0", {});
    for (std::size_t i = 0; i < found.size(); ++i) {
        const TiffDirectory directory = found[i]; // a copy, as visiting adds to the vector
        for (std::size_t e = 0; e < directory.entries.size(); ++e) {
            const TiffEntry& entry = directory.entries[e];
            if (!leadsToDirectories(entry.tag, entry.type))
                continue;
            const std::vector<std::uint32_t> offsets = integers(entry, kMostDirectories);
            complete = complete && offsets.size() == entry.count;
            for (std::size_t item = 0; item < offsets.size(); ++item) {
                if (offsets[item] != 0)
                    visit({offsets[item]}, directory.path + "/" + hexNumber(entry.tag, 4),
                          {TiffReference::Kind::Entry, i, e, item});
            }
        }
        const bool isInChain = directory.path.find('/') == std::string::npos;
        if (isInChain && directory.next.value != 0)
            visit(directory.next, directory.path + "+1", {TiffReference::Kind::Link, i});
    }
    return found;
}

std::vector<TiffRange> TiffBlock::imageRanges(const TiffDirectory& directory, const TiffImageTags& tags) const
{
    const auto offsets = std::ranges::find(directory.entries, tags.offsets, &TiffEntry::tag);
    const auto lengths = std::ranges::find(directory.entries, tags.lengths, &TiffEntry::tag);
    if (offsets == directory.entries.end() || lengths == directory.entries.end())
        return {};
    const std::vector<std::uint32_t> firsts = integers(*offsets, kMostStrips);
    const std::vector<std::uint32_t> sizes = integers(*lengths, kMostStrips);
    std::vector<TiffRange> ranges;
    for (std::size_t i = 0; i < std::min(firsts.size(), sizes.size()); ++i)
        ranges.push_back({firsts[i], sizes[i]});
    return ranges;
}

} // namespace ovisto
