// SPDX-License-Identifier: MIT

#pragma once

#include "common/system/FileId.h"

#include <string>
#include <string_view>
#include <vector>

namespace ovisto {

/// What is in one folder: names without the folder's path, sorted without regard to case. What is hidden, or neither
/// file nor folder, is left out. A symbolic link counts as what it leads to.
struct FolderListing {
    FileId identity;          ///< first, its file system
    bool showsSystem = false; ///< what is in it are processes, devices and settings of the system
    std::vector<std::string> files;
    std::vector<std::string> folders;
};

/// Raises the system's error if `folder` cannot be read.
FolderListing listFolder(const std::string& folder);

/// The path of `name` in `folder`.
std::string pathIn(const std::string& folder, std::string_view name);

} // namespace ovisto
