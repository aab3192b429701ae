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
    // The first file that cannot be checked stands for all: a person wants to be told, but not of 20,000 files.
    bool wasReported = false;
    while (auto file = m_walk.next(progress, reporter)) {
        if (!progress.step(file->path, file->place, file->count))
            return;
        bool keep = false;
        ErrorTrap trap;
        trap.run([&] { keep = filter->keeps(file->path); });
        if (trap.pending() && !std::exchange(wasReported, true))
            reportPending(reporter, Message::CheckingContents, trap);
        if (keep)
            found.push_back(std::move(file->path));
    }
}

} // namespace ovisto
