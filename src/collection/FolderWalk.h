#pragma once

#include "collection/FilePattern.h"
#include "common/ErrorReport.h"
#include "common/Progress.h"
#include "common/system/FileListing.h"

#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace ovisto {

/// Goes through a folder, and those below it where wanted, from file to file: those of a folder by name, then those of
/// its sub-folders. No folder is read twice, by whatever links it is reached, so that links in a circle end.
class FolderWalk {
public:
    /// Raises kPathNotFound, described by Message::FolderNotFound, when `folder` cannot be read. The files are those
    /// whose names match `patterns`.
    FolderWalk(std::string folder, std::string_view patterns, bool subFolders);

    /// A file with its place among those of its folder.
    struct File {
        std::string path;
        std::size_t place = 0;
        std::size_t count = 0;
    };

    /// The next file; none after the last one, or when `progress`, which is told of each folder below the first one,
    /// stops. A folder that cannot be read is reported with its path, and left out with all below it.
    std::optional<File> next(Progress& progress, ErrorReporter& reporter);

private:
    void read(const std::string& folder);

    FilePattern m_pattern;
    bool m_subFolders;
    std::string m_folder;             ///< where it is
    std::vector<std::string> m_names; ///< of the files there
    std::size_t m_place = 0;          ///< of the next one of them
    std::vector<std::string> m_ahead; ///< folders to read, the next one at the end
    std::set<FolderIdentity> m_seen;
};

} // namespace ovisto
