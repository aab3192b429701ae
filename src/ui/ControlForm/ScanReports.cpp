// SPDX-License-Identifier: MIT

#include "ui/ControlForm/ScanReports.h"

#include "collection/ContentFilter.h"

#include <utility>

namespace ovisto {

void ScanReports::report(const Phrase& context, const Error& error)
{
    const bool isFolder = context != Message::CheckingContents;
    if (isFolder && std::exchange(m_folderTold, true))
        m_notReadToo.push_back({inEnglish(context), error});
    else
        m_reporter.report(context, error);
}

} // namespace ovisto
