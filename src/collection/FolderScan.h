#pragma once

#include "collection/ContentFilter.h"
#include "collection/FilePattern.h"
#include "common/ErrorReport.h"
#include "common/FileListing.h"
#include "common/Progress.h"

#include <optional>
#include <set>
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

inline constexpr const char* kFolderNotFound = "Folder not found";
inline constexpr const char* kNoFilesFound =
    "No files found with search criteria specified.  Click 'Find Files' button to try again.";

/// The tool tip of a list of `count` files found.
std::string foundFilesToolTip(std::size_t count);

/// Finds the files of a folder by name and content.
class FolderScan {
public:
    /// Raises kPathNotFound, described by kFolderNotFound, when the folder cannot be opened.
    explicit FolderScan(ScanOptions options);

    /// Adds the full paths of the files found to `found`, emptied before unless the options say otherwise: those of a
    /// folder by name, then those of its sub-folders. A path is added whether the list has it already or not. No folder
    /// is read twice, by whatever links it is reached, so that links in a circle end.
    /// `progress` is told of every file whose name matches, with its place in its folder; when it stops, what was found
    /// stays. An error while a folder is read ends that folder and those below it, and is reported with its path. A
    /// content search that cannot be made, or not of some files, is reported once.
    void run(std::vector<std::string>& found, Progress& progress, ErrorReporter& reporter);

private:
    struct Run;
    void scan(Run& run, const std::string& folder);
    void scanFiles(Run& run, const std::string& folder, const std::vector<std::string>& names);

    ScanOptions m_options;
    FilePattern m_pattern;
};

} // namespace ovisto
