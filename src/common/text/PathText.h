// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

namespace ovisto {

/// A path split after its last "\" or "/", whichever comes later; without either, the folder is empty. For texts; the
/// folder that a file is in is folderOf() its path.
struct PathParts {
    std::string folder; ///< with the separator at its end
    std::string name;
};

PathParts splitPath(std::string_view path);

} // namespace ovisto
