// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

namespace ovisto {

/// The folders that a style sheet may read files from: its own, and others that a person allows.
class ReadableFolders {
public:
    /// None.
    ReadableFolders() = default;
    /// The folder of `styleSheet`, unless that is a pipe, and `others`.
    ReadableFolders(const std::string& styleSheet, const std::vector<std::string>& others);

    /// Whether the file at `path` is below one of them, wherever links and ".." lead.
    bool contain(const std::string& path) const;

private:
    void add(const std::string& folder);

    std::vector<std::string> m_folders; // real paths with a separator at the end
};

} // namespace ovisto
