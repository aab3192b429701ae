// SPDX-License-Identifier: MIT

#pragma once

#include "common/Phrase.h"
#include "writer/DocumentChanges.h"
#include "writer/EntryBytes.h"
#include "writer/TiffBlock.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace ovisto {

/// What one entry says, wherever its value stands.
struct EntryContent {
    static constexpr std::int64_t kAnywhere = -1;

    std::uint16_t tag = 0;
    std::uint16_t type = 0;
    std::uint32_t count = 0;
    std::vector<std::uint8_t> bytes{}; ///< of the value, numbers with the least significant byte first
    bool isPlace = false;              ///< the value only says where something stands, which is compared by itself
    /// The offset of a maker note, which may hold offsets that depend on it; kAnywhere where it does not count.
    std::int64_t makerNote = 0;

    bool operator==(const EntryContent& other) const;
};

/// What a directory says.
struct DirectoryContent {
    std::vector<EntryContent> entries; ///< in the order of their tags; those of one tag keep their order
    std::uint32_t link = 0;            ///< to the next directory, where that is not a directory of the content

    bool operator==(const DirectoryContent&) const = default;
};

/// What an Exif segment says, apart from where it says it.
struct ExifContent {
    /// The byte order mark, where it is not a valid one, and the number after it. Which of the two orders it is does
    /// not count.
    std::vector<std::uint8_t> header;

    /// By the way that leads there: "IFD0", "IFD0/8769" for the directory that entry 8769 leads to, "IFD0+" for the one
    /// that the first links to. A directory with two ways to it is there twice.
    std::map<std::string, DirectoryContent> directories;
    std::map<std::string, std::vector<std::uint8_t>> images; ///< by the way to the entry that leads there

    bool operator==(const ExifContent&) const = default;
};

/// Reads the content of a block. Raises kInvalidCall when its directories say the same again and again.
ExifContent exifContent(const TiffBlock& block);

/// What a block with the content of `old` has to say after the changes of `parts`. Raises what EntryBytes raises.
ExifContent expectedContent(const TiffBlock& old, const std::vector<PartChange>& parts);

/// What differs; `parts` gives directories the names that they have in the document.
std::vector<Phrase> differences(const ExifContent& expected, const ExifContent& found,
                                const std::vector<PartChange>& parts);

/// Entries and images.
std::size_t contentCount(const ExifContent& content);

} // namespace ovisto
