// SPDX-License-Identifier: MIT

#pragma once

#include "common/Progress.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace ovisto {

/// The result of one file: text for standard output, and lines for standard error, each with a line end.
struct FileResult {
    std::string output{};
    std::string errors{}; ///< why the file failed
    std::string notes{};  ///< what else the user should know
    bool failed = false;  ///< whether the file failed without an error
};

inline bool hasFailed(const FileResult& result)
{
    return result.failed || !result.errors.empty();
}

/// Calls `work` once for the index of every path, in up to `jobs` threads at a time, and `finish` with each result, one
/// at a time and in the order of `paths`. `progress` is called before each file is finished; when it stops the loop, no
/// other file is started, but those already started are finished. What `work` raises becomes the error of its file;
/// what `finish` or `progress` raises ends the loop and is raised when all that was started is finished.
void forEachFile(const std::vector<std::string>& paths, unsigned jobs,
                 const std::function<FileResult(std::size_t index)>& work,
                 const std::function<void(const FileResult&)>& finish, Progress& progress);

/// Returns the next path, and nothing after the last one.
using FileSource = std::function<std::optional<std::string>()>;

/// The same for files that are still being found. `next` is never called at the same time as `finish` or itself.
void forEachFile(const FileSource& next, unsigned jobs, const std::function<FileResult(const std::string& path)>& work,
                 const std::function<void(const FileResult&)>& finish, Progress& progress);

} // namespace ovisto
