// SPDX-License-Identifier: MIT

#pragma once

#include "common/ErrorReport.h"
#include "common/system/File.h"
#include "common/system/FileReplacement.h"
#include "common/xml/XmlDocument.h"
#include "jpeg/FileIdentity.h"
#include "writer/DocumentSave.h"
#include "writer/SaveReceipt.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace ovisto {

/// When a file that is marked read-only fails.
enum class ReadOnlyFails {
    AtTheEnd, ///< its new version is written, and stays
    AtOnce    ///< nothing is written: among many, it would only take space
};

/// What a new version is made for.
struct NewVersionOptions {
    ReadOnlyFails readOnlyFails = ReadOnlyFails::AtTheEnd;
    SparedFile isSpared{};
    /// The file that the document to be written was read from; if not given, the file as it is now.
    std::optional<FileIdentity> asRead{};
};

/// The new version of a JPEG file, which replaces the old one in three steps: write it whole under a temporary name
/// beside the old file, bring it to disk, put it in place. A step that fails reports and raises the error and leaves
/// the old file unchanged. A complete new version that could not take the place of the old one stays under its
/// temporary name, unless the old file is not the one any more that its document was read from; any other is deleted
/// with the object.
class NewVersion {
public:
    /// Opens the file, or the target of a symbolic link, and creates the new version under its first temporary name
    /// that is free. What an earlier save left under such a name is deleted: a file that isIncomplete() or
    /// hasSameImage(), unless a save is writing it or it is spared. `reporter` must outlive the object.
    NewVersion(ErrorReporter& reporter, const std::string& fileName, const NewVersionOptions& options);
    NewVersion(const NewVersion&) = delete;
    NewVersion& operator=(const NewVersion&) = delete;
    ~NewVersion();

    /// Writes the new version from `document` as rebuildJpeg() does, and starts bringing a large one to disk. Fails if
    /// `read` cannot read it back.
    void write(XmlDocument& document, const DocumentReader& read);

    /// Writes the new version in the way that `save` asks for, and compares it with the old one. Keep fails if anything
    /// differs beyond the changes. Rebuild then has the old file kept as NAME.original, see putInPlace(). Both fail if
    /// the new version cannot be read back.
    void write(const DocumentSave& save);

    /// What the comparison said, after write() with a DocumentSave.
    const SaveReceipt& receipt() const { return m_receipt; }

    /// Waits until it is on disk, unless bringToDiskTogether() has done so.
    void bringToDisk();

    /// Brings many to disk with one sync a file system, which is far quicker than one by one. Fails for none of them:
    /// where it cannot be said that all is well, the bringToDisk() of each finds out.
    static void bringToDiskTogether(const std::vector<NewVersion*>& versions);

    /// Replaces the old file, unless another program changed, replaced or deleted it after it was read. If that loses
    /// something, the old file first gets the second name NAME.original; an existing file of that name is an older
    /// state and stays. Sync folder() afterwards.
    void putInPlace();

    /// The folder that the file is in.
    std::string folder() const;

    /// Bytes in the old file.
    std::int64_t oldSize() const { return m_oldFile.size(); }

private:
    FileIdentity oldIdentity(const std::optional<FileIdentity>& asRead) const;
    void rebuild(XmlDocument& document);
    std::string target(const std::string& fileName, ReadOnlyFails readOnlyFails);
    bool isLeftover(const std::string& path, const InputFile& file) const;
    void patch(const DocumentSave& save);
    void compare(const DocumentSave& save);
    void checkOldFile() const;
    void keepOriginal();
    void replaceOld();
    void raise(const ReplaceFailure& failure);
    template <class Fill> void writeWhole(Fill fill);

    ErrorReporter& m_reporter;
    SparedFile m_isSpared;
    std::string m_target; // the file itself if its name is a symbolic link
    InputFile m_oldFile;
    FileIdentity m_asRead; // the file that the document was read from
    OutputFile m_newFile;
    std::string m_temporaryName;
    SaveReceipt m_receipt;
    std::optional<FileId> m_original; // kept by this save
    bool m_stays = false;             // under whatever name the new file has
    bool m_onDisk = false;            // whether the new file is known to be on disk
};

} // namespace ovisto
