#pragma once

#include "common/xml/XmlDocument.h"
#include "document/TagDictionary.h"

#include <string>

namespace ovisto {

/// The property tree as text, one line a node, two blanks a level: label, value and data type. With `technical`, the
/// technical properties too.
std::string propertyText(const XmlDocument& document, const TagDictionary& dictionary, bool technical);

} // namespace ovisto
