// SPDX-License-Identifier: MIT

#pragma once

#include "collection/FilePattern.h"
#include "common/ErrorReport.h"
#include "common/Progress.h"
#include "common/system/FileId.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace ovisto {

/// Walks the files of a folder and, if wanted, of its subfolders: first the files of a folder by name, then those of
/// its subfolders. No folder is read twice, whatever links lead to it, so circular links end. File systems that only
/// show processes, devices and settings of the system are passed over, unless the walk began in one.
class FolderWalk {
public:
    /// When `folder` cannot be read, raises an error that is described by Message::FolderNotFound; only its number says
    /// why. The files are those whose names match `patterns`, without what saves left under temporary names.
    FolderWalk(std::string folder, std::string_view patterns, bool subFolders);

    /// A file and its place among the files of its folder.
    struct File {
        std::string path;      ///< begins with the folder as it was given
        std::size_t place = 0; ///< the first is 0
        std::size_t count = 0; ///< of the files whose names match
    };

    /// The next file; nothing after the last one, or when `progress`, which is called for each folder below the first,
    /// stops the walk. A folder that cannot be read is reported with its path and skipped, with everything below it.
    std::optional<File> next(Progress& progress, ErrorReporter& reporter);

    /// Whether next() has returned all files: it was not stopped, and it skipped no folder.
    bool isWhole() const { return m_ahead.empty() && m_place == m_names.size() && !m_skipped; }

private:
    void read(const std::string& folder);

    FilePattern m_pattern;
    bool m_subFolders;
    std::string m_folder;             ///< the current folder
    std::vector<std::string> m_names; ///< of its files
    std::size_t m_place = 0;          ///< of the next of them
    std::vector<std::string> m_ahead; ///< folders to read, the next one at the end
    bool m_skipped = false;           ///< a folder that could not be read, or where the walk was stopped
    std::set<FileId> m_seen;
    std::uint64_t m_firstFileSystem = 0;
};

} // namespace ovisto
