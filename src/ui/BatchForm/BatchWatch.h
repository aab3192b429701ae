// SPDX-License-Identifier: MIT

#pragma once

#include "common/ErrorReport.h"
#include "common/Progress.h"
#include "ui/App/Dialogs.h"

#include <QString>

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace ovisto {

/// What became of a file in a batch, in the order in which people want to know.
enum class BatchOutcome { Failed, NotReached, Unchanged, Changed };

struct BatchResult {
    std::string path;
    BatchOutcome outcome;
    Phrase reason{}; ///< of a failure
};

/// Watches a batch for the user. At the first file that fails, it asks whether to go on with the others, if there are
/// any left; the answer counts for all that fail later. Cancelling the progress ends the batch too.
class BatchWatch : public Progress, public ErrorReporter {
public:
    /// `files` are those of the batch. All must outlive the object.
    BatchWatch(const std::vector<std::string>& files, Progress& progress, Dialogs& dialogs);

    bool step(const std::string& path, std::size_t done, std::size_t total) override;
    void report(const Phrase& context, const Error& error) override;
    /// The new version of this file is in place.
    void saved(const std::string& path);

    /// Each file once: those that failed, then those that were not reached, were left as they are, were changed; each
    /// of these in the order of the list.
    std::vector<BatchResult> results() const;

private:
    const std::vector<std::string>& m_files;
    Progress& m_progress;
    Dialogs& m_dialogs;
    std::size_t m_started = 0; ///< files, from the first one on
    bool m_asked = false;
    bool m_stopped = false;
    std::unordered_map<std::string_view, BatchOutcome> m_outcomes; ///< of those started
    std::unordered_map<std::string, Phrase> m_reasons;             ///< of those that failed
};

/// How many files were changed, left as they are, and so on.
QString batchSummary(const std::vector<BatchResult>& results);

} // namespace ovisto
