// SPDX-License-Identifier: MIT

#pragma once

#include "common/xml/XmlNode.h"
#include "writer/SegmentWriter.h"

#include <string_view>

namespace ovisto {

/// Lays out `exif`, an Exif element, and writes its whole APP1 segment, marker included, always little-endian. Errors
/// are reported and raised; an error in one directory does not keep the others from being written.
void WriteExif(SegmentWriter& writer, XmlNode exif);

/// Writes the entries of `directory`, which must be laid out, the offset of the next directory, and the values outside.
void WriteIFD(SegmentWriter& writer, const ConstXmlNode& directory);

/// Writes the bytes of a value: `dataType` is the attribute "d", `id` the tag in hexadecimal. Commas separate numbers;
/// a slash separates the parts of a fraction.
void WriteValue(SegmentWriter& writer, std::string_view text, int dataType, std::string_view id);

} // namespace ovisto
