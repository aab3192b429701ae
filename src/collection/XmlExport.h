#pragma once

#include "common/ErrorReport.h"
#include "common/xml/XmlDocument.h"

#include <string>

namespace ovisto {

/// The file that the metadata of the image at `imagePath` is exported to: beside it, ".XML" appended to the whole name.
std::string exportPath(const std::string& imagePath);

/// Removes the attributes that only serve the program while it shows or lays out a document.
void removeBookkeeping(XmlDocument& document);

/// Writes `document`, which stays as it is, without bookkeeping to the export file of `imagePath`, which it replaces.
/// Errors are reported and raised.
void exportDocument(const XmlDocument& document, const std::string& imagePath, ErrorReporter& reporter);

} // namespace ovisto
