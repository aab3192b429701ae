#pragma once

#include "collection/Report.h"
#include "common/ErrorReport.h"
#include "common/Progress.h"

#include <vector>

namespace ovisto {

/// Watches over a batch for a person in front: hands on what it is told, and ends the batch when a file cannot be
/// changed, as the others would hardly fare better. One that cannot be read, or is there no more, ends nothing. Of
/// files that fail after that, as they were already on their way, nobody is told one by one.
class BatchWatch : public Progress, public ErrorReporter {
public:
    /// Both must outlive the object.
    BatchWatch(Progress& progress, ErrorReporter& reporter) : m_progress(progress), m_reporter(reporter) {}

    bool step(const std::string& path, std::size_t done, std::size_t total) override;
    void report(const Phrase& context, const Error& error) override;

    /// Those that failed after the one that ended the batch.
    const std::vector<FileFailure>& failedToo() const { return m_failedToo; }

private:
    Progress& m_progress;
    ErrorReporter& m_reporter;
    bool m_failed = false;
    std::vector<FileFailure> m_failedToo;
};

} // namespace ovisto
