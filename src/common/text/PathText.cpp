// SPDX-License-Identifier: MIT

#include "common/text/PathText.h"

namespace ovisto {

PathParts splitPath(std::string_view path)
{
    const auto separator = path.find_last_of("\\/");
    const auto nameStart = separator == std::string_view::npos ? 0 : separator + 1;
    return {std::string(path.substr(0, nameStart)), std::string(path.substr(nameStart))};
}

} // namespace ovisto
