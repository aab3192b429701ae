// SPDX-License-Identifier: MIT

#include "collection/FolderScan.h"

#include <optional>
#include <utility>

namespace ovisto {

FolderScan::FolderScan(ScanOptions options)
    : m_options(std::move(options)), m_walk(m_options.folder, m_options.patterns, m_options.subFolders)
{
}

void FolderScan::run(std::vector<std::string>& found, Progress& progress, ErrorReporter& reporter)
{
    if (!m_options.append)
        found.clear();
    std::optional<ContentFilter> filter;
    if (!attempt(reporter, Message::CheckingContents, [&] { filter.emplace(m_options.content); }))
        return;
    FailedChecks failed;
    while (!failed.areTooMany()) {
        auto file = m_walk.next(progress, reporter);
        if (!file || !progress.step(file->path, file->place, file->count))
            break;
        bool keep = false;
        ErrorTrap trap;
        trap.run([&] { keep = filter->keeps(file->path); });
        if (trap.pending())
            failed.add(trap.error());
        if (keep)
            found.push_back(std::move(file->path));
    }
    const std::optional<Error> failure = failed.summary();
    if (!failure)
        return;
    progress.endOfFiles(); // a message must not hold up the scan
    ErrorReport(reporter, Message::CheckingContents, *failure);
}

} // namespace ovisto
