#pragma once

#include "common/xml/XmlDocument.h"

#include <string>

namespace ovisto {

/// Loads the XML file `source` into `document`, replacing what it held: validated where it declares a document type,
/// white space between elements left out. Raises kOpenFailed with the file, line and position, the reason and the
/// source text up to the position; `document` is then empty.
void XMLLoad(XmlDocument& document, const std::string& source);

/// The same for a style sheet, as transformNode() takes it. It is read once, so that it may be a pipe where `kind` says
/// so; what it imports by relative names then has to lie beside the pipe.
void loadStyleSheet(XmlDocument& document, const std::string& source, FileKind kind);

/// The message for a metadata document that does not parse.
Phrase parseErrorText(const XmlParseError& error);

} // namespace ovisto
