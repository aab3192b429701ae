// SPDX-License-Identifier: MIT

#include "common/system/FileNames.h"

#include <algorithm>

#include <climits>

namespace ovisto {

namespace {

std::size_t nameStart(std::string_view path)
{
    const auto separator = path.rfind('/');
    return separator == std::string_view::npos ? 0 : separator + 1;
}

/// `name` without `excess` bytes or a few more, taken from the end of the part before the extension.
std::string shortened(std::string_view name, std::size_t excess)
{
    constexpr std::size_t kLongestExtension = 16; // what is longer is part of the name
    const auto dot = name.rfind('.');
    const bool hasExtension = dot != std::string_view::npos && name.size() - dot <= kLongestExtension;
    const std::size_t stemSize = hasExtension ? dot : name.size();
    const auto isInCharacter = [&](std::size_t place) {
        return (static_cast<unsigned char>(name[place]) & 0xC0) == 0x80;
    };
    std::size_t kept = stemSize - std::min(excess, stemSize);
    while (kept > 0 && isInCharacter(kept))
        --kept;
    return std::string(name.substr(0, kept)).append(name.substr(stemSize));
}

} // namespace

std::string folderOf(std::string_view path)
{
    return std::string(path.substr(0, nameStart(path)));
}

std::string temporaryName(std::string_view path, int number)
{
    const std::string_view name = path.substr(nameStart(path));
    const std::string mark = number == 1 ? "~" : "~" + std::to_string(number);
    const std::size_t size = mark.size() + name.size();
    return folderOf(path) + mark + (size > NAME_MAX ? shortened(name, size - NAME_MAX) : std::string(name));
}

bool isTemporaryName(std::string_view path, std::string_view original)
{
    for (int number = 1; number <= kTemporaryNames; ++number) {
        if (temporaryName(original, number) == path)
            return true;
    }
    return false;
}

} // namespace ovisto
