// SPDX-License-Identifier: MIT

#pragma once

#include "common/xml/XmlNode.h"
#include "document/Reading.h"
#include "document/TagNumbers.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace ovisto {

// The parts of an Exif element. Reading, layout, writing, creation and deletion all walk this table, so a further
// directory is a row here, and entries in the tag dictionary and its document type.

/// The element names of the parts.
inline constexpr std::string_view kFirstDirectory = "Exif"; ///< its own entries, called IFD0 in TIFF
inline constexpr std::string_view kExifIfd = "IFDE";
inline constexpr std::string_view kInteroperabilityIfd = "IFDI";
inline constexpr std::string_view kMakerNoteBytes = "MAKE";
inline constexpr std::string_view kGpsIfd = "IFDG";
inline constexpr std::string_view kThumbnailIfd = "IFD1";
inline constexpr std::string_view kThumbnailBytes = "THUM";

/// A directory has entries (elements IFD); a block of bytes is a run of hexadecimal digits.
enum class PartKind { Directory, Bytes };

/// The tags of the entries that say where a part is in the TIFF structure; 0 for none.
struct PartPointer {
    std::uint16_t offset = 0;
    /// For Bytes, how many there are. Without such an entry, it is the component count of the entry with the offset.
    std::uint16_t length = 0;
};

/// An entry and its text.
struct EntryText {
    std::uint16_t tag = 0;
    std::string_view text = {};
};

/// A row of the table.
struct ExifPart {
    std::string_view element = {};
    /// The element that it is a child of; empty for the first directory, which is Exif itself.
    std::string_view parent = {};
    PartKind kind = PartKind::Directory;
    /// The directory that holds the entries of `pointer` and `strips` or, without such entries, whose link to the next
    /// directory leads here. Empty for the first directory, which the TIFF header points to.
    std::string_view pointedFrom = {};
    PartPointer pointer = {}; ///< created together with the part
    PartPointer strips = {};  ///< the same for an image in strips: the first offset and the sum of the lengths
    EntryText property = {};  ///< another entry that is created together with the part
    /// The part that the directory exists for, if any: the two are deleted together. Any other part is deleted together
    /// with the entry of its offset.
    std::string_view purpose = {};
    EntryText firstEntry = {};        ///< the entry that a new directory begins with, if it has a text
    bool hasTagZero = false;          ///< whether 0 is a tag in there; in other directories it ends the entries
    Reading reading = Reading::Basic; ///< Full: only full documents have the part
};

/// In file order. Parts of the same parent are also in document order.
inline constexpr ExifPart kExifParts[] = {
    {.element = kFirstDirectory},
    {.element = kExifIfd, .parent = kFirstDirectory, .pointedFrom = kFirstDirectory, .pointer = {kExifDirectory}},
    {.element = kInteroperabilityIfd,
     .parent = kFirstDirectory,
     .pointedFrom = kExifIfd,
     .pointer = {kInteroperabilityDirectory}},
    {.element = kMakerNoteBytes,
     .parent = kExifIfd,
     .kind = PartKind::Bytes,
     .pointedFrom = kExifIfd,
     .pointer = {kMakerNote}},
    {.element = kGpsIfd,
     .parent = kFirstDirectory,
     .pointedFrom = kFirstDirectory,
     .pointer = {kGpsDirectory},
     .firstEntry = {kGpsVersion, "02030000"},
     .hasTagZero = true,
     .reading = Reading::Full},
    {.element = kThumbnailIfd, .parent = kFirstDirectory, .pointedFrom = kFirstDirectory, .purpose = kThumbnailBytes},
    {.element = kThumbnailBytes,
     .parent = kThumbnailIfd,
     .kind = PartKind::Bytes,
     .pointedFrom = kThumbnailIfd,
     .pointer = {kThumbnailOffset, kThumbnailLength},
     .strips = {kStripOffsets, kStripByteCounts},
     .property = {kCompression, "6"}}, // JPEG, as Exif asks of a thumbnail
};

/// The row of an element; null if it is not a part.
const ExifPart* exifPart(std::string_view element);

/// The row for a node path as NodeXPath() writes it; null if it is not the path of a part.
const ExifPart* exifPartAt(std::string_view nodePath);

/// The row of the part that the entry at a node path, written as NodeXPath() does, leads to; null if it leads to none.
const ExifPart* partPointedFrom(std::string_view nodePath);

/// The row of the byte block whose size is the component count of the entries with this tag; null if there is none.
const ExifPart* bytesCountedBy(int tag);

/// The node of a part below `exif`, an Exif element, or no node.
XmlNode partNode(XmlNode exif, const ExifPart& part);
ConstXmlNode partNode(ConstXmlNode exif, const ExifPart& part);

/// The reading that a document must have for a node at `nodePath`, written as NodeXPath() does.
Reading readingNeeded(std::string_view nodePath);

/// A path that selects the part in the first Exif element, whatever its id.
std::string partPath(const ExifPart& part);

/// A path that selects the entry of `directory`, a row, that has this tag, in the first Exif element, whatever its id.
std::string entryPath(const ExifPart& directory, std::uint16_t tag);

} // namespace ovisto
