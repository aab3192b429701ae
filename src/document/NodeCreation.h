// SPDX-License-Identifier: MIT

#pragma once

#include "common/ErrorReport.h"
#include "common/xml/XmlDocument.h"
#include "document/TagDictionary.h"

namespace ovisto {

/// Creates in `document` the element that `entry` describes, and returns it. Also creates what it needs: the elements
/// above it and, for a part of an Exif element, the entries that point to it. The order of the dictionary decides its
/// place among its siblings. Does not look for an existing element of the same path; the caller must. A failure is
/// reported, and the element may then be missing.
XmlNode CreateNode(XmlDocument& document, const DictionaryEntry& entry, ErrorReporter& reporter);

} // namespace ovisto
