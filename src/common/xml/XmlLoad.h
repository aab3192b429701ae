// SPDX-License-Identifier: MIT

#pragma once

#include "common/xml/XmlDocument.h"

#include <string>
#include <vector>

namespace ovisto {

/// Loads the XML file `source` into `document`, replacing its content. Validates it if it declares a document type, and
/// drops white space between elements. On failure, raises kOpenFailed with the file, line and position, the reason, and
/// the source text up to the position; `document` is then empty.
void XMLLoad(XmlDocument& document, const std::string& source);

/// The same for a style sheet for transformNode(). It is read once, so it may be a pipe if `kind` allows that. It may
/// read files below its own folder, which a pipe has none of, and below those of `readable`.
void loadStyleSheet(XmlDocument& document, const std::string& source, FileKind kind,
                    const std::vector<std::string>& readable = {});

/// The message for a metadata document that cannot be parsed.
Phrase parseErrorText(const XmlParseError& error);

} // namespace ovisto
