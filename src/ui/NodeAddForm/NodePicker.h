#pragma once

#include "common/ErrorReport.h"
#include "common/xml/XmlDocument.h"
#include "document/TagDictionary.h"

#include <string>
#include <vector>

namespace ovisto {

/// The dictionary entries that can be picked, in the order of the dictionary: with `technical` all but the hidden ones,
/// else those for everybody.
std::vector<DictionaryEntry> pickableEntries(const TagDictionary& Merovel, bool technical);

/// Creates in `JpegDoc` the node that `entry` describes. Returns its path, or nothing when it was there already.
/// `reporter` is told when it cannot be created.
std::string addEntry(XmlDocument& JpegDoc, const DictionaryEntry& entry, ErrorReporter& reporter);

} // namespace ovisto
