// SPDX-License-Identifier: MIT

#pragma once

#include "common/ErrorReport.h"
#include "common/xml/XmlNode.h"

#include <cstdint>

namespace ovisto {

// The layout of an Exif segment is computed on the document itself. Each IFD entry gets the attributes "l", its
// component count, and "s", "1" if the value is inside the entry and "0" if it is outside. Each directory, each value
// outside and the maker note get "o", their TIFF offset. Exif gets "lo", the offset of the directory after the first.
// Entries that point to something get its offset as text. A second layout changes nothing.
//
// The parts follow each other without gaps in the order of kExifParts. A directory consists of its entries, the offset
// of the next directory, and its values outside.

/// Lays out `exif`, an Exif element. Returns the size of its TIFF structure in bytes. Errors are reported and raised.
std::int64_t layOutExif(XmlNode exif, ErrorReporter& reporter);

/// Bytes that the value of a laid out entry has to have.
std::int64_t laidOutSize(const ConstXmlNode& entry);

/// Gives `directory` the offset `pos`, and each of its values outside theirs. Moves `pos` past all that. Reports and
/// raises errors.
void CalcOffsets(std::int64_t& pos, XmlNode directory, ErrorReporter& reporter);

} // namespace ovisto
