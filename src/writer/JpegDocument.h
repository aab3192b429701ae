#pragma once

#include "common/ErrorReport.h"
#include "common/File.h"
#include "common/XmlDocument.h"

#include <optional>
#include <string>

namespace ovisto {

/// Writes JPEG files from their metadata documents.
class JpegDocument {
public:
    /// `reporter` is told of every failure; it must outlive the object.
    explicit JpegDocument(ErrorReporter& reporter) : m_reporter(reporter) {}

    /// Writes the file anew from `document`, whose IMG element must describe the image data of the file as it is on
    /// disk. The segments come from the document, the image data is copied. The new file is complete, under the name of
    /// the file with "~" in front, before it takes the place of the old one; a file that has this name is deleted. A
    /// segment that would not have the length that it says is a failure, as nothing behind it could be read. On
    /// failure, which is reported and raised, the old file is as it was, and the "~" file may stay behind. The Exif
    /// elements of `document` are laid out in the course of it.
    void WriteJpeg(XmlDocument& document, const std::string& fileName);

private:
    /// The new version of a file, complete and on disk under its temporary name.
    struct NewVersion {
        std::string fileName;
        std::string temporaryName;
        InputFile oldFile;
        OutputFile newFile;
    };

    NewVersion writeTemporary(XmlDocument& document, const std::string& fileName);
    void replaceOld(const NewVersion& version);
    void writeSegments(XmlDocument& document, OutputFile& file);

    ErrorReporter& m_reporter;
};

} // namespace ovisto
