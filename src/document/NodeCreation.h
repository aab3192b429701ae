#pragma once

#include "common/ErrorReport.h"
#include "common/xml/XmlDocument.h"
#include "document/TagDictionary.h"

namespace ovisto {

/// Creates in `document` the element that `entry` describes, and returns it. What it needs is created as well: the
/// elements above it, and for a part of an Exif element the entries that point to it. The order of the dictionary
/// decides where it stands among its siblings.
/// An existing element of the same path is not looked for: the caller does that. A failure is reported; the element may
/// then be missing.
XmlNode CreateNode(XmlDocument& document, const DictionaryEntry& entry, ErrorReporter& reporter);

} // namespace ovisto
