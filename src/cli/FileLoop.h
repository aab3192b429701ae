#pragma once

#include "common/Progress.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace ovisto {

/// What became of one file: text for standard output, and for standard error what went wrong, each line ended.
struct FileResult {
    std::string output;
    std::string errors;
};

/// Calls `work` once for the index of every path, in up to `jobs` threads at a time, and `finish` with each result, one
/// at a time and in the order of `paths`. `progress` is told before each file is finished.
void forEachFile(const std::vector<std::string>& paths, unsigned jobs,
                 const std::function<FileResult(std::size_t index)>& work,
                 const std::function<void(const FileResult&)>& finish, Progress& progress);

} // namespace ovisto
