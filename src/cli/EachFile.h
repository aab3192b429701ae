// SPDX-License-Identifier: MIT

#pragma once

#include "cli/FileLoop.h"
#include "cli/Options.h"
#include "common/ErrorReport.h"

#include <functional>
#include <string>
#include <vector>

namespace ovisto {

/// What a command does with one file: it writes to `result`, may report, and raises an error if it fails.
using FileWork = std::function<void(const std::string& path, FileResult& result, ErrorReporter& reporter)>;

/// Does `work` for each of `files`, which `options` name. An error that it raises becomes one line about the file, with
/// the first report. Returns the exit status.
int runEach(const FileOptions& options, const std::vector<std::string>& files, const FileWork& work);

} // namespace ovisto
