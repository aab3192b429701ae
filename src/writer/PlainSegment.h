// SPDX-License-Identifier: MIT

#pragma once

#include "common/xml/XmlNode.h"
#include "writer/SegmentWriter.h"

#include <string>

namespace ovisto {

// Segments that stand in a document as they are, all but Exif.

/// Writes the whole segment of `element`, marker and length included; nothing for an element that is not one of these,
/// such as IMG. Errors are reported and raised.
void writePlainSegment(SegmentWriter& writer, const ConstXmlNode& element);

/// The value of a non-Exif APP1 element: what follows the identifier in the segment, in a CDATA section or not. Raises
/// kInvalidCall if there are elements in it.
std::string app1Text(const ConstXmlNode& element);

} // namespace ovisto
