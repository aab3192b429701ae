// SPDX-License-Identifier: MIT

#pragma once

#include "jpeg/ByteReader.h"
#include "jpeg/IfdEntry.h"
#include "reader/EntryValue.h"

namespace ovisto {

/// readEntryValue() for a full document.
void readFullEntryValue(ByteReader& reader, const IfdEntry& entry, EntryValue& value);

} // namespace ovisto
