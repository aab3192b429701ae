#pragma once

#include "common/Error.h"

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
/// whole new file. A file that may not be deleted (marked read-only, or its folder denies it) fails at the deletion.
/// Until syncFolder(), either of the two may be there after a power failure.
std::optional<ReplaceFailure> replaceFile(const std::string& replacement, const std::string& path);

/// Why replaceFile() would fail, if that is known in advance: `path` is marked read-only.
std::optional<ReplaceFailure> replaceObstacle(const std::string& path);

/// Has the file `path`, which is about to be replaced, stay there as `keptPath` in the same folder, with all its
/// attributes. False when there is a file of that name already, which stays as it is; raises kPathAccessError when that
/// is not a regular file. Until syncFolder(), a power failure may take it away.
bool keepFile(const std::string& path, const std::string& keptPath);

/// Takes away a name that keepFile() made, if it can.
void forgetKept(const std::string& keptPath);

/// Makes replacements, creations and deletions in `folder` survive a power failure, where the file system can do that.
void syncFolder(const std::string& folder);

/// The target of `path` if it is a symbolic link, else `path` itself.
std::string linkTarget(const std::string& path);

} // namespace ovisto
