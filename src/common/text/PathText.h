#pragma once

#include <string>
#include <string_view>

namespace ovisto {

/// A path split after its last "\" or "/", whichever comes later; without either, the folder is empty.
struct PathParts {
    std::string folder; ///< with the separator at its end
    std::string name;
};

PathParts splitPath(std::string_view path);

/// The name under which a new version of the file `path` is written: in the same folder, with "~" before its name.
std::string temporaryNameOf(std::string_view path);

} // namespace ovisto
