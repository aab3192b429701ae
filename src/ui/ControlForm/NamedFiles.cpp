// SPDX-License-Identifier: MIT

#include "ui/ControlForm/NamedFiles.h"

#include <filesystem>
#include <system_error>

namespace ovisto {

namespace fs = std::filesystem;

namespace {

/// Hands progress on, and remembers whether it stopped.
class RememberingProgress : public Progress {
public:
    explicit RememberingProgress(Progress& next) : m_next(next) {}

    bool step(const std::string& path, std::size_t done, std::size_t total) override
    {
        m_stopped = !m_next.step(path, done, total);
        return !m_stopped;
    }

    bool enter(const std::string& folder) override
    {
        m_stopped = !m_next.enter(folder);
        return !m_stopped;
    }

    bool stopped() const { return m_stopped; }

private:
    Progress& m_next;
    bool m_stopped = false;
};

std::string fullPath(const std::string& name)
{
    std::error_code failure;
    const fs::path full = fs::absolute(name, failure);
    return failure ? name : full.lexically_normal().string();
}

} // namespace

NamedFiles namedFiles(const std::vector<std::string>& names, const ScanOptions& options, Progress& progress,
                      ErrorReporter& reporter)
{
    NamedFiles files;
    ScanOptions folderOptions = options;
    folderOptions.append = true;
    RememberingProgress remembering(progress);
    for (const std::string& name : names) {
        if (remembering.stopped())
            break;
        std::error_code unknown;
        folderOptions.folder = fullPath(name);
        const fs::file_type type = fs::status(name, unknown).type();
        if (type != fs::file_type::directory) {
            (type == fs::file_type::not_found ? files.missing : files.found).push_back(folderOptions.folder);
            continue;
        }
        ErrorTrap trap;
        trap.run([&] { FolderScan(folderOptions).run(files.found, remembering, reporter); });
        if (trap.pending())
            ErrorReport(reporter, folderOptions.folder, trap.take());
    }
    return files;
}

} // namespace ovisto
