#pragma once

#include "jpeg/ByteReader.h"

#include <cstdint>
#include <string>

namespace ovisto {

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

/// What an entry's value becomes in the document.
struct EntryValue {
    int dataType = 0; ///< the attribute "d"
    std::string text; ///< escaped where it needs to be
};

/// The data type that the document gives an entry, as far as the entry itself tells.
int entryDataType(const IfdEntry& entry);

/// Reads the value of `entry`. Raises what ByteReader raises.
EntryValue entryValue(ByteReader& reader, const IfdEntry& entry);

} // namespace ovisto
