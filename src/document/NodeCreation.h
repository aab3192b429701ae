#pragma once

#include "common/ErrorReport.h"
#include "common/xml/XmlDocument.h"

namespace ovisto {

/// Makes in `document` the element that `templateNode`, an entry of the tag dictionary, describes, and returns it. What
/// it needs is made as well: the elements above it, and for a directory, the maker note and the thumbnail the entries
/// that point to them. The order of the dictionary decides where it stands among its siblings.
/// An existing element of the same path is not looked for: the caller does that. On failure `reporter` is told, and the
/// element may be missing.
XmlNode CreateNode(XmlDocument& document, const XmlNode& templateNode, ErrorReporter& reporter);

} // namespace ovisto
