// SPDX-License-Identifier: MIT

#pragma once

#include "collection/FolderScan.h"
#include "common/ErrorReport.h"
#include "common/Progress.h"

#include <string>
#include <vector>

namespace ovisto {

/// What names lead to, as full paths.
struct NamedFiles {
    std::vector<std::string> found;
    std::vector<std::string> missing; ///< names that are those of no file and no folder
};

/// The named files, with each named folder replaced by the files that a scan with `options` finds in it. The scans use
/// `progress` and `reporter`; when `progress` stops one, the remaining names are left out.
NamedFiles namedFiles(const std::vector<std::string>& names, const ScanOptions& options, Progress& progress,
                      ErrorReporter& reporter);

} // namespace ovisto
