#pragma once

#include "collection/FolderScan.h"
#include "common/ErrorReport.h"
#include "common/Progress.h"

#include <string>
#include <vector>

namespace ovisto {

/// The full paths of the named files, with each named folder replaced by the files that a scan with `options` finds in
/// it. The scans use `progress` and `reporter`; when `progress` stops one, the remaining names are left out.
std::vector<std::string> namedFiles(const std::vector<std::string>& names, const ScanOptions& options,
                                    Progress& progress, ErrorReporter& reporter);

} // namespace ovisto
