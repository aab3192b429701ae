#pragma once

#include <string>
#include <vector>

namespace ovisto {

enum class SubFolders { No, Yes };

/// The full paths of the JPEG files (*.jpg and *.jpeg, in any letter case) in `folder`, sorted by name, hidden ones
/// left out; then those in its sub-folders. A folder that cannot be read has none. Raises kPathNotFound when `folder`
/// is no folder.
std::vector<std::string> listFolder(const std::string& folder, SubFolders subFolders);

/// The full paths of `paths`, each folder among them replaced by its files.
std::vector<std::string> listPaths(const std::vector<std::string>& paths, SubFolders subFolders);

} // namespace ovisto
