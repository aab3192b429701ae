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
    std::string folder;
    std::string patterns = "*.jpg;*.jpeg";
    bool subFolders = true; ///< those below the folder too
    bool append = false;    ///< to the list as it is, not to an empty one
    ContentSearch content;
};

/// Finds the files of a folder by name and content.
class FolderScan {
public:
    /// Raises what FolderWalk raises.
    explicit FolderScan(ScanOptions options);

    /// Adds the full paths of the files found to `found`, emptied before unless the options say otherwise, in the order
    /// of FolderWalk, whether the list has them already or not. To be called once.
    /// `progress` is told of every file whose name matches, with its place in its folder; when it stops, what was found
    /// stays. A folder that cannot be read is reported with its path. A content search that cannot be made, or not of
    /// some files, is reported once.
    void run(std::vector<std::string>& found, Progress& progress, ErrorReporter& reporter);

private:
    ScanOptions m_options;
    FolderWalk m_walk;
};

} // namespace ovisto
