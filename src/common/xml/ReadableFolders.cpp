// SPDX-License-Identifier: MIT

#include "common/xml/ReadableFolders.h"

#include "common/system/File.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace ovisto {

ReadableFolders::ReadableFolders(const std::string& styleSheet, const std::vector<std::string>& others)
{
    const std::filesystem::path path(styleSheet);
    std::error_code status;
    if (std::filesystem::is_regular_file(path, status))
        add(path.has_parent_path() ? path.parent_path().string() : ".");
    std::ranges::for_each(others, [&](const std::string& folder) { add(folder); });
}

void ReadableFolders::add(const std::string& folder)
{
    std::string real = realPath(folder);
    if (!real.ends_with('/'))
        real += '/';
    m_folders.push_back(std::move(real));
}

bool ReadableFolders::contain(const std::string& path) const
{
    const std::string real = realPath(path);
    return std::ranges::any_of(m_folders, [&](const std::string& folder) { return real.starts_with(folder); });
}

} // namespace ovisto
