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

} // namespace ovisto
