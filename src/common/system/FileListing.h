#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ovisto {

/// What tells a folder from all others, by whatever name it was reached.
using FolderIdentity = std::pair<std::uint64_t, std::uint64_t>;

/// What is in one folder: names without the folder's path, sorted as people sort names. Hidden things, and those that
/// are neither file nor folder, are left out. What a symbolic link leads to decides what it is.
struct FolderListing {
    FolderIdentity identity;
    std::vector<std::string> files;
    std::vector<std::string> folders;
};

/// Raises the system's reason when `folder` cannot be read.
FolderListing listFolder(const std::string& folder);

/// The path of what is called `name` in `folder`.
std::string pathIn(const std::string& folder, std::string_view name);

} // namespace ovisto
