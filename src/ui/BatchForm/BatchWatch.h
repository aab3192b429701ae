#pragma once

#include "collection/Report.h"
#include "common/ErrorReport.h"
#include "common/Progress.h"

#include <vector>

namespace ovisto {

/// Watches a batch for the user: passes reports on, and ends the batch when a file cannot be changed, because the
/// others would probably fail too. A file that cannot be read, or no longer exists, does not end it. Files that fail
/// afterwards, because they were already in progress, are not reported one by one.
class BatchWatch : public Progress, public ErrorReporter {
public:
    /// Both must outlive the object.
    BatchWatch(Progress& progress, ErrorReporter& reporter) : m_progress(progress), m_reporter(reporter) {}

    bool step(const std::string& path, std::size_t done, std::size_t total) override;
    void report(const Phrase& context, const Error& error) override;

    /// The files that failed after the one that ended the batch.
    const std::vector<FileFailure>& failedToo() const { return m_failedToo; }

private:
    Progress& m_progress;
    ErrorReporter& m_reporter;
    bool m_failed = false;
    std::vector<FileFailure> m_failedToo;
};

} // namespace ovisto
