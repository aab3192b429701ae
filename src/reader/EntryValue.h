// SPDX-License-Identifier: MIT

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

/// Reads the value of `entry` into `value`. Raises the errors of ByteReader; `value` then has the data type as far as
/// it was known, and no text.
void readEntryValue(ByteReader& reader, const IfdEntry& entry, EntryValue& value);

} // namespace ovisto
