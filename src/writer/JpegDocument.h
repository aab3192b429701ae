#pragma once

#include "common/ErrorReport.h"
#include "common/xml/XmlDocument.h"

#include <string>

namespace ovisto {

/// Writes JPEG files from their metadata documents, one at a time. For many files, see NewVersion.
class JpegDocument {
public:
    /// Reports every failure to `reporter`, which must outlive the object.
    explicit JpegDocument(ErrorReporter& reporter) : m_reporter(reporter) {}

    /// Rewrites the file from `document`, as rebuildJpeg() does. The new file is complete, under the file's name with
    /// "~" in front, before it replaces the old one; an existing file of that name is deleted. Failures are reported
    /// and raised; the old file is then unchanged, and the "~" file may be left.
    void WriteJpeg(XmlDocument& document, const std::string& fileName);

private:
    ErrorReporter& m_reporter;
};

} // namespace ovisto
