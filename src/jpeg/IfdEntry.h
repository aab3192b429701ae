// SPDX-License-Identifier: MIT

#pragma once

#include "jpeg/ByteReader.h"
#include "jpeg/FilePosition.h"

#include <cstdint>

namespace ovisto {

/// The size of an entry in bytes. A directory consists of the number of its entries (two bytes), the entries, and the
/// offset of the next directory (four bytes).
inline constexpr std::int64_t kIfdEntrySize = 12;

/// The position of entry `index` (the first is 0) of the directory at `directory`. The offset of the next directory
/// follows the last entry.
constexpr FilePos ifdEntryPosition(FilePos directory, int index)
{
    return directory + 2 + index * kIfdEntrySize;
}

/// An entry of a TIFF directory as it is in the file.
struct IfdEntry {
    FilePos base;             ///< the TIFF header
    FilePos position;         ///< of the entry itself
    std::uint16_t tag = 0;    ///< tag number
    std::uint16_t format = 0; ///< TIFF field type
    std::uint32_t count = 0;  ///< the number of values that it claims to have

    /// The four bytes that hold a short value or the offset of a longer one.
    FilePos valueField() const { return position + 8; }
};

/// Reads the entry at `position` of a directory whose TIFF header is at `base`.
inline IfdEntry readIfdEntry(ByteReader& reader, FilePos base, FilePos position)
{
    return {base, position, reader.ReadInteger(position), reader.ReadInteger(position + 2),
            reader.ReadLong(position + 4)};
}

} // namespace ovisto
