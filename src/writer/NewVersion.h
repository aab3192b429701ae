#pragma once

#include "common/ErrorReport.h"
#include "common/system/File.h"
#include "common/xml/XmlDocument.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ovisto {

/// What stays of a new version that could not be finished.
enum class Leftover {
    Kept,  ///< the incomplete file, under its temporary name
    Spared ///< nothing, and nothing is written for a file marked read-only: among many it would only take space
};

/// The new version of a JPEG file on its way to the old one's place, in three steps: write it whole under a temporary
/// name beside the old file, bring it to disk, put it in place. A step that fails is reported and raised, and the old
/// file is as it was. A new version that is complete but could not be put in place stays under its temporary name.
class NewVersion {
public:
    /// Opens the file, or where it leads to as a symbolic link, and creates the new version; a file that has the
    /// temporary name is deleted. No other save can take that name while the object lives. `reporter` must outlive it.
    NewVersion(ErrorReporter& reporter, const std::string& fileName, Leftover leftover);

    /// Writes the new version from `document` as rebuildJpeg() does, and has the disk begin with it where it is large.
    void write(XmlDocument& document);

    /// Waits until the disk has it, unless bringToDiskTogether() has seen to that.
    void bringToDisk();

    /// Brings many to disk with one sync a file system, which is far quicker than one by one. Fails for none of them:
    /// where it cannot be said that all is well, the bringToDisk() of each finds out.
    static void bringToDiskTogether(const std::vector<NewVersion*>& versions);

    /// Puts it in the place of the old file. After that, folder() is still to be synced.
    void putInPlace();

    /// The folder that the file is in.
    std::string folder() const;

    /// Bytes in the old file.
    std::int64_t oldSize() const { return m_oldFile.size(); }

private:
    template <class Fill> void writeWhole(Fill fill);
    template <class Step> void spared(Step step);

    ErrorReporter& m_reporter;
    Leftover m_leftover;
    std::string m_target; // the file itself, where its name is a symbolic link
    std::string m_temporaryName;
    InputFile m_oldFile;
    OutputFile m_newFile;
    bool m_onDisk = false; // whether it is known that the disk has the new file
};

} // namespace ovisto
