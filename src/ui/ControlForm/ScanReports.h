// SPDX-License-Identifier: MIT

#pragma once

#include "collection/Report.h"
#include "common/ErrorReport.h"

#include <vector>

namespace ovisto {

/// Passes the reports of a scan on to the user, but only the first about a folder that cannot be read. There may be
/// thousands of them, and the scan cannot be cancelled while a message is open.
class ScanReports : public ErrorReporter {
public:
    /// `reporter` must outlive the object.
    explicit ScanReports(ErrorReporter& reporter) : m_reporter(reporter) {}

    void report(const Phrase& context, const Error& error) override;

    /// The folders that could not be read, after the first.
    const std::vector<FileFailure>& notReadToo() const { return m_notReadToo; }

private:
    ErrorReporter& m_reporter;
    bool m_folderTold = false;
    std::vector<FileFailure> m_notReadToo;
};

} // namespace ovisto
