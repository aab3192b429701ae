// SPDX-License-Identifier: MIT

#pragma once

#include "common/ErrorReport.h"
#include "common/xml/XmlDocument.h"
#include "writer/SaveReceipt.h"

#include <string>
#include <utility>

namespace ovisto {

/// Writes JPEG files from their metadata documents, one at a time. For many files, see NewVersion.
class JpegDocument {
public:
    /// Reports every failure to `reporter`, which must outlive the object. `read` reads back what was written.
    JpegDocument(ErrorReporter& reporter, DocumentReader read) : m_reporter(reporter), m_read(std::move(read)) {}

    /// Rewrites the file from `document`, as rebuildJpeg() does. The new file is complete, under a temporary name, and
    /// can be read back before it replaces the old one. Failures are reported and raised; the old file is then
    /// unchanged. A complete new file that could not replace it stays. One that did, but may not be on disk yet, is
    /// only reported.
    void WriteJpeg(XmlDocument& document, const std::string& fileName);

private:
    ErrorReporter& m_reporter;
    DocumentReader m_read;
};

} // namespace ovisto
