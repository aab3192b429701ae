#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ovisto {

/// Equal for two paths only if they lead to the same folder.
using FolderIdentity = std::pair<std::uint64_t, std::uint64_t>;

/// What is in one folder: names without the folder's path, sorted without regard to case. What is hidden, or neither
/// file nor folder, is left out. A symbolic link counts as what it leads to.
struct FolderListing {
    FolderIdentity identity;
    std::vector<std::string> files;
    std::vector<std::string> folders;
};

/// Raises the system's error if `folder` cannot be read.
FolderListing listFolder(const std::string& folder);

/// The path of `name` in `folder`.
std::string pathIn(const std::string& folder, std::string_view name);

} // namespace ovisto
