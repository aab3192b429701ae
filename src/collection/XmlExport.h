// SPDX-License-Identifier: MIT

#pragma once

#include "common/ErrorReport.h"
#include "common/xml/XmlDocument.h"

#include <string>

namespace ovisto {

/// The file to which the metadata of the image at `imagePath` is exported: its path with ".XML" appended.
std::string exportPath(const std::string& imagePath);

/// Removes the attributes that the program uses only while it shows or lays out a document.
void removeBookkeeping(XmlDocument& document);

/// Writes `document`, without bookkeeping and in UTF-8, to the export file of `imagePath`, replacing it. `document`
/// itself is unchanged. Errors are reported and raised.
void exportDocument(const XmlDocument& document, const std::string& imagePath, ErrorReporter& reporter);

} // namespace ovisto
