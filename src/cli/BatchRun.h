// SPDX-License-Identifier: MIT

#pragma once

#include "cli/CommandOutput.h"
#include "cli/Options.h"
#include "collection/BatchAction.h"

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

namespace ovisto {

/// How a batch does what the options say, in up to `jobs` stretches at a time.
BatchOptions batchOptions(const WritingOptions& writing, unsigned jobs);

/// What became of the files of a batch.
struct BatchCounts {
    std::size_t begun = 0; ///< fewer than all of them after an interruption
    std::size_t changed = 0;
    std::size_t failed = 0;
    std::size_t total = 0;
};

/// Runs `batch` over `files`, its own, up to `jobs` stretches of them at a time, and writes what became of them.
/// A file that was saved has failed where `isDone`, if any, denies it; it is called from several threads at the same
/// time.
BatchCounts runBatch(const BatchAction& batch, const std::vector<std::string>& files, unsigned jobs,
                     const WritingOptions& writing, CommandOutput& output,
                     const std::function<bool(const SaveReceipt&)>& isDone = {});

/// The same in words.
std::string countsText(const BatchCounts& counts);

} // namespace ovisto
