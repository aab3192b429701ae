#pragma once

#include "collection/Report.h"
#include "common/ErrorReport.h"

#include <vector>

namespace ovisto {

/// Stands between a scan and a person in front: hands on what it is told, but of folders that cannot be read only the
/// first. There may be thousands of them, and while a message about each is there, the scan cannot be cancelled.
class ScanReports : public ErrorReporter {
public:
    /// `reporter` must outlive the object.
    explicit ScanReports(ErrorReporter& reporter) : m_reporter(reporter) {}

    void report(const Phrase& context, const Error& error) override;

    /// The folders after the first.
    const std::vector<FileFailure>& notReadToo() const { return m_notReadToo; }

private:
    ErrorReporter& m_reporter;
    bool m_folderTold = false;
    std::vector<FileFailure> m_notReadToo;
};

} // namespace ovisto
