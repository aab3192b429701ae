#pragma once

#include "common/xml/XmlDocument.h"
#include "document/TagDictionary.h"

#include <string>

namespace ovisto {

/// The property tree as text: one line per node, indented by two blanks per level, with label, value and data type.
/// With `technical`, including technical properties.
std::string propertyText(const XmlDocument& document, const TagDictionary& dictionary, bool technical);

} // namespace ovisto
