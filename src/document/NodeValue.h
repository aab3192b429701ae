// SPDX-License-Identifier: MIT

#pragma once

#include "common/xml/XmlNode.h"

#include <string>

namespace ovisto {

// The value of a node, as people see and set it.

/// Whether the node is there to hold others, in a document or in the dictionary.
bool isDirectory(const ConstXmlNode& node);

/// Whether the node holds other nodes, or is there to hold them, such as a directory. It has no value to be set.
bool holdsNodes(const ConstXmlNode& node);

/// Whether the value is the content of a segment that is not Exif but shares its marker, such as XMP. Its line breaks
/// are bytes like any other.
bool isSegmentText(const ConstXmlNode& node);

/// The text of the node; for a segment text without the one line break that sets it off from its tag, which is layout.
/// Empty if there are nodes below.
std::string nodeValue(const ConstXmlNode& node);

/// Makes `value` the value of the node. Raises kInvalidCall if it holds other nodes, which would be lost.
void setNodeValue(XmlNode node, const std::string& value);

} // namespace ovisto
