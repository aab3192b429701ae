#pragma once

#include "collection/FolderScan.h"
#include "common/ErrorReport.h"
#include "common/Progress.h"

#include <string>
#include <vector>

namespace ovisto {

/// The full paths of the files that were named one by one, and, in the place of each folder that was named, of those
/// that a scan by `options` finds in it. `progress` and `reporter` are told what the scans tell them; when `progress`
/// stops, what was named after that is left out.
std::vector<std::string> namedFiles(const std::vector<std::string>& names, const ScanOptions& options,
                                    Progress& progress, ErrorReporter& reporter);

} // namespace ovisto
