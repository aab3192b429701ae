#pragma once

#include "jpeg/ByteReader.h"
#include "jpeg/FilePosition.h"

#include <cstdint>

namespace ovisto {

/// Bytes of an entry. A directory is the number of its entries in two bytes, the entries, and the offset of the next
/// directory in four bytes.
inline constexpr std::int64_t kIfdEntrySize = 12;

/// Where entry number `index`, the first being 0, of the directory at `directory` stands; the offset of the next
/// directory stands where the entry after the last one would.
constexpr FilePos ifdEntryPosition(FilePos directory, int index)
{
    return directory + 2 + index * kIfdEntrySize;
}

/// One entry of a TIFF directory as it stands in the file.
struct IfdEntry {
    FilePos base;             ///< the TIFF header
    FilePos position;         ///< the entry's own place
    std::uint16_t tag = 0;    ///< tag number
    std::uint16_t format = 0; ///< TIFF field type
    std::uint32_t count = 0;  ///< how many values it says it has

    /// The four bytes that hold a short value or the offset of a longer one.
    FilePos valueField() const { return position + 8; }
};

/// Reads the entry at `position` of a directory whose TIFF header stands at `base`.
inline IfdEntry readIfdEntry(ByteReader& reader, FilePos base, FilePos position)
{
    return {base, position, reader.ReadInteger(position), reader.ReadInteger(position + 2),
            reader.ReadLong(position + 4)};
}

} // namespace ovisto
