#pragma once

#include "common/ErrorReport.h"
#include "common/system/File.h"
#include "common/system/FileReplacement.h"
#include "common/xml/XmlDocument.h"

#include <optional>
#include <string>

namespace ovisto {

/// Writes JPEG files from their metadata documents.
class JpegDocument {
public:
    /// `reporter` is told of every failure; it must outlive the object.
    explicit JpegDocument(ErrorReporter& reporter) : m_reporter(reporter) {}

    /// Writes the file anew from `document`, whose IMG element must describe the image data of the file as it is on
    /// disk: a file that was changed after the document was read is refused. The segments come from the document, the
    /// image data is copied. The new file is complete, under the name of the file with "~" in front, before it takes
    /// the place of the old one; a file that has this name is deleted. A segment that would not have the length that it
    /// says is a failure, as nothing behind it could be read. On failure, which is reported and raised, the old file is
    /// as it was, and the "~" file may stay behind. The Exif elements of `document` are laid out in the course of it.
    void WriteJpeg(XmlDocument& document, const std::string& fileName);

    /// A file's new version, complete under its temporary name beside the old one. No other save can take that name as
    /// long as it is open.
    struct NewVersion {
        std::string fileName; ///< where a symbolic link leads to
        std::string temporaryName;
        InputFile oldFile;
        OutputFile newFile;
        bool onDisk = false; ///< whether it is known that the disk has it
    };

    // WriteJpeg in three steps, for who has many files to write: a disk takes them faster in one go. They fail as it
    // does, but leave no "~" file behind that is not complete, and write none for a file that is marked read-only:
    // among many they would only take space. After the last one the folder of the file is still to be synced.

    /// Writes the new version, and has the disk begin with it where it is large.
    NewVersion writeTemporary(XmlDocument& document, const std::string& fileName);
    /// Waits until the disk has it, where that is not known.
    void finishTemporary(NewVersion& version);
    /// Puts it, finished, in the place of the old one.
    void replaceOld(const NewVersion& version);

private:
    NewVersion openVersions(const std::string& fileName);
    void fill(NewVersion& version, XmlDocument& document);
    void bringToDisk(NewVersion& version);
    void writeSegments(XmlDocument& document, OutputFile& file);
    void raise(const std::optional<ReplaceFailure>& failure, const std::string& fileName);

    ErrorReporter& m_reporter;
};

} // namespace ovisto
