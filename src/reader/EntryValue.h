#pragma once

#include "jpeg/ByteReader.h"
#include "jpeg/IfdEntry.h"

#include <string>

namespace ovisto {

/// What an entry's value becomes in the document.
struct EntryValue {
    int dataType = 0; ///< the attribute "d"
    std::string text; ///< escaped where it needs to be
};

/// The data type that the document gives an entry, as far as the entry alone decides it.
int entryDataType(const IfdEntry& entry);

/// Reads the value of `entry`. Raises the errors of ByteReader.
EntryValue entryValue(ByteReader& reader, const IfdEntry& entry);

} // namespace ovisto
