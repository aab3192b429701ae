#pragma once

#include "common/ErrorReport.h"
#include "common/xml/XmlDocument.h"

#include <string>

namespace ovisto {

/// Writes JPEG files from their metadata documents, one at a time. For many files, see NewVersion.
class JpegDocument {
public:
    /// Every failure is reported to `reporter`, which must outlive the object.
    explicit JpegDocument(ErrorReporter& reporter) : m_reporter(reporter) {}

    /// Writes the file anew from `document`, as rebuildJpeg() does. The new file is complete, under the name of the
    /// file with "~" in front, before it takes the place of the old one; a file that has this name is deleted. On
    /// failure, which is reported and raised, the old file is as it was, and the "~" file may stay behind.
    void WriteJpeg(XmlDocument& document, const std::string& fileName);

private:
    ErrorReporter& m_reporter;
};

} // namespace ovisto
