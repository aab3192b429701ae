// SPDX-License-Identifier: MIT

#pragma once

#include "cli/CommandOutput.h"
#include "cli/Options.h"
#include "collection/BatchAction.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <mutex>
#include <string>
#include <unordered_set>
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

/// Which of its files a batch did not do. Several threads may use it at once, each for other files.
class UndoneFiles {
public:
    /// `files` must outlive the object. None of them is reached yet.
    explicit UndoneFiles(const std::vector<std::string>& files) : m_files(files), m_reached(files.size()) {}

    void setReached(std::size_t index, bool isReached = true) { m_reached[index] = isReached; }
    void addFailed(const std::string& path);

    /// Those that failed and those that were not reached, in the order of all.
    std::vector<std::string> names() const;

private:
    const std::vector<std::string>& m_files;
    std::vector<std::uint8_t> m_reached; // not bool: threads write side by side
    std::mutex m_mutex;
    std::unordered_set<std::string> m_failed;
};

/// Runs `batch` over `files`, its own, up to `jobs` stretches of them at a time, writes what became of them and notes
/// those that are `undone`.
/// A file that was saved has failed where `isDone`, if any, denies it; it is called from several threads at the same
/// time.
BatchCounts runBatch(const BatchAction& batch, const std::vector<std::string>& files, unsigned jobs,
                     const WritingOptions& writing, CommandOutput& output, UndoneFiles& undone,
                     const std::function<bool(const SaveReceipt&)>& isDone = {});

/// The same in words.
std::string countsText(const BatchCounts& counts);

} // namespace ovisto
