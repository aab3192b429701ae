#include "collection/FolderScan.h"

#include <algorithm>
#include <utility>

namespace ovisto {

/// What belongs to one run through the folders.
struct FolderScan::Run {
    std::vector<std::string>& found;
    Progress& progress;
    ErrorReporter& reporter;
    const ContentFilter& filter;
    std::set<FolderIdentity> seen = {};
    bool canceled = false;
    bool checkFailed = false;

    /// The first file that cannot be checked stands for all: a person wants to be told, but not of 20,000 files.
    bool keeps(const std::string& path)
    {
        ErrorTrap trap;
        bool keep = false;
        trap.run([&] { keep = filter.keeps(path); });
        if (trap.pending() && !std::exchange(checkFailed, true))
            ErrorReport(reporter, kContentCheckContext, trap.error());
        return keep;
    }
};

std::string foundFilesToolTip(std::size_t count)
{
    return "List of files found (" + std::to_string(count) + ")";
}

FolderScan::FolderScan(ScanOptions options) : m_options(std::move(options)), m_pattern(m_options.patterns)
{
    ErrorTrap trap;
    trap.run([&] { listFolder(m_options.folder); });
    if (trap.pending())
        throw Error{kPathNotFound, kFolderNotFound};
}

void FolderScan::run(std::vector<std::string>& found, Progress& progress, ErrorReporter& reporter)
{
    if (!m_options.append)
        found.clear();
    std::optional<ContentFilter> filter;
    ErrorTrap trap;
    trap.run([&] { filter.emplace(m_options.content); });
    if (trap.pending())
        return ErrorReport(reporter, kContentCheckContext, trap.take());
    Run run{.found = found, .progress = progress, .reporter = reporter, .filter = *filter};
    scan(run, m_options.folder);
}

void FolderScan::scan(Run& run, const std::string& folder)
{
    std::vector<std::string> subFolders;
    ErrorTrap trap;
    trap.run([&] {
        FolderListing listing = listFolder(folder);
        if (!run.seen.insert(listing.identity).second)
            return;
        std::erase_if(listing.files, [&](const std::string& name) { return !m_pattern.matches(name); });
        scanFiles(run, folder, listing.files);
        if (m_options.subFolders)
            subFolders = std::move(listing.folders);
    });
    if (trap.pending())
        return ErrorReport(run.reporter, folder, trap.take());
    for (const std::string& name : subFolders) {
        if (run.canceled)
            return;
        scan(run, pathIn(folder, name));
    }
}

void FolderScan::scanFiles(Run& run, const std::string& folder, const std::vector<std::string>& names)
{
    for (std::size_t i = 0; i < names.size(); ++i) {
        std::string path = pathIn(folder, names[i]);
        run.canceled = !run.progress.step(path, i, names.size());
        if (run.canceled)
            return;
        if (run.keeps(path))
            run.found.push_back(std::move(path));
    }
}

} // namespace ovisto
