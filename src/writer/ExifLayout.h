#pragma once

#include "common/ErrorReport.h"
#include "common/xml/XmlNode.h"

#include <cstdint>

namespace ovisto {

// The layout of an Exif segment is worked out on the document itself. Each IFD entry gets the attributes "l", its
// component count, and "s", "1" when the value stands in the entry and "0" when it stands outside; each directory, each
// value outside and the maker note get "o", their TIFF offset; Exif gets "lo", the offset of the directory that follows
// the first; and the entries that point to something get its offset as text. Doing it twice changes nothing.
//
// The parts follow each other without gaps in the order of kExifParts. A directory's part is its entries, the offset of
// the next one and its values outside.

/// Lays out `exif`, an Exif element. Returns the size of its TIFF structure in bytes. Errors are reported, with what
/// could not be done, and raised.
std::int64_t layOutExif(XmlNode exif, ErrorReporter& reporter);

/// Gives `directory` the offset `pos`, and each of its values outside theirs. Moves `pos` past all that. Reports and
/// raises errors.
void CalcOffsets(std::int64_t& pos, XmlNode directory, ErrorReporter& reporter);

} // namespace ovisto
