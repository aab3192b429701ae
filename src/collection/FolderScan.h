// SPDX-License-Identifier: MIT

#pragma once

#include "collection/ContentFilter.h"
#include "collection/FolderWalk.h"
#include "common/ErrorReport.h"
#include "common/Progress.h"

#include <string>
#include <vector>

namespace ovisto {

/// Which files to find.
struct ScanOptions {
    std::string folder;                    ///< bytes, as the system gives them
    std::string patterns = "*.jpg;*.jpeg"; ///< see FilePattern
    bool subFolders = true;                ///< including subfolders
    bool append = false;                   ///< to the existing list instead of an empty one
    ContentSearch content;
};

/// Finds the files of a folder by name and content.
class FolderScan {
public:
    /// Raises what FolderWalk raises.
    explicit FolderScan(ScanOptions options);

    /// Appends the full paths of the files found to `found` in the order of FolderWalk, even if it already has them.
    /// Clears `found` first unless the options say append. Call only once. `progress` is called for every file whose
    /// name matches, with its place in its folder; when it stops the scan, what was found stays. A folder that cannot
    /// be read is reported with its path. A content search that fails, altogether or for some files, is reported once,
    /// at the end; it ends when it failed for too many.
    void run(std::vector<std::string>& found, Progress& progress, ErrorReporter& reporter);

private:
    ScanOptions m_options;
    FolderWalk m_walk;
};

} // namespace ovisto
