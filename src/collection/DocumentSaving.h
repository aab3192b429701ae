#pragma once

#include "common/ErrorReport.h"
#include "common/xml/XmlDocument.h"
#include "writer/DocumentSave.h"

#include <string>

namespace ovisto {

/// Saves `document` to its file at `path`, which must be as it was when the document was read. Raises the error that
/// kept the file from being replaced, which has been reported; the file is then unchanged. Rebuilding lays out the Exif
/// elements of `document`.
SaveReceipt saveDocument(XmlDocument& document, const std::string& path, WritingWay way, ErrorReporter& reporter);

/// What rebuilding the JPEG file at `path` would lose, without writing to it. Raises the error that keeps it from being
/// read or rebuilt.
SaveReceipt tryRebuilding(const std::string& path, ErrorReporter& reporter);

} // namespace ovisto
