#pragma once

#include <string>
#include <string_view>

namespace ovisto {

/// A path cut after its last "\" or "/", whichever stands later; without one the folder is empty.
struct PathParts {
    std::string folder; ///< with the separator at its end
    std::string name;
};

PathParts splitPath(std::string_view path);

/// The name under which a new version of the file `path` is written: beside it, "~" in front of its own name.
std::string temporaryNameOf(std::string_view path);

} // namespace ovisto
