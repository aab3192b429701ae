#pragma once

#include "cli/FileLoop.h"
#include "common/ErrorReport.h"

#include <functional>
#include <string>
#include <vector>

namespace ovisto {

/// What a command does with one file: it writes to `result`, may report, and raises what it fails with.
using FileWork = std::function<void(const std::string& path, FileResult& result, ErrorReporter& reporter)>;

/// Does `work` with each of the files by itself, up to `jobs` at a time. What it raises becomes one line about the
/// file, with the first report in it. Returns the exit status.
int runEach(const std::vector<std::string>& files, unsigned jobs, const FileWork& work);

} // namespace ovisto
