// SPDX-License-Identifier: MIT

#pragma once

#include "common/xml/XmlDocument.h"
#include "document/TagDictionary.h"

#include <string>

namespace ovisto {

/// Which properties are shown, and how.
struct PropertyOptions {
    bool technical = false; ///< technical properties, too
    bool raw = false;       ///< values as they are in the document, without their meaning
};

/// The property tree as text: one line per node, indented by two blanks per level, with label, value and data type. The
/// value is what it means and, in square brackets, what the document has, unless the former says it.
std::string propertyText(const XmlDocument& document, const TagDictionary& dictionary, const PropertyOptions& options);

} // namespace ovisto
