#pragma once

#include "common/xml/XmlNode.h"
#include "writer/SegmentWriter.h"

#include <string_view>

namespace ovisto {

/// Writes the whole APP1 segment of `exif`, an Exif element, marker included, after laying it out. It is always written
/// little-endian, whatever it was before. Errors are reported and raised; those of one directory do not keep the others
/// from being written.
void WriteExif(SegmentWriter& writer, XmlNode exif);

/// Writes the entries of `directory`, laid out before, the offset of the next directory and the values outside.
void WriteIFD(SegmentWriter& writer, const ConstXmlNode& directory);

/// Writes the bytes of a value: `dataType` is the attribute "d", `id` the tag in hexadecimal. Numbers are separated by
/// commas, the parts of a fraction by a stroke.
void WriteValue(SegmentWriter& writer, std::string_view text, int dataType, std::string_view id);

} // namespace ovisto
