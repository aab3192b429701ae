// SPDX-License-Identifier: MIT

#pragma once

#include "common/Error.h"
#include "common/system/File.h"
#include "common/system/FileId.h"

#include <functional>
#include <optional>
#include <string>

namespace ovisto {

enum class ReplaceStep { Delete, Rename };

/// Which step of a replacement failed, and why.
struct ReplaceFailure {
    ReplaceStep step;
    Error error;
};

/// Puts the complete file `replacement` in the place of `path`, so that at every instant `path` names a whole old or a
/// whole new file. A file that may not be deleted (marked read-only, or its folder denies it) fails at the deletion; a
/// replacement that has lost its name fails at the renaming. Until syncFolder(), either of the two may be there after a
/// power failure. `lastLook` is called right before, when nothing else stands in the way; what it raises is passed on.
std::optional<ReplaceFailure> replaceFile(const OutputFile& replacement, const std::string& path,
                                          const std::function<void()>& lastLook = {});

/// Why replaceFile() would fail, if that is known in advance: `path` is marked read-only.
std::optional<ReplaceFailure> replaceObstacle(const std::string& path);

/// Has the file `path`, which is about to be replaced, stay there as `keptPath` in the same folder, with all its
/// attributes, and returns which file that is. Nothing when there is a file of that name already, which stays as it is;
/// raises kPathAccessError when that is not a regular file. Until syncFolder(), a power failure may take it away.
/// `isLeftover` is for files that have a temporary name of `keptPath`.
std::optional<FileId> keepFile(const std::string& path, const std::string& keptPath, const LeftoverTest& isLeftover);

/// Deletes the file `path` if it is this one.
void deleteFile(const std::string& path, const FileId& identity);

/// Makes replacements, creations and deletions in `folder` survive a power failure, where the file system can do that.
/// Raises an error that says so (Message::NotKnownOnDisk) when the disk may not have them.
void syncFolder(const std::string& folder);

/// The target of `path` if it is a symbolic link, else `path` itself. Raises an error if that cannot be found out.
std::string linkTarget(const std::string& path);

} // namespace ovisto
