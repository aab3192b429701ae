// SPDX-License-Identifier: MIT

#include "collection/BatchAction.h"

#include "collection/DocumentLoad.h"
#include "collection/DocumentSaving.h"
#include "common/FirstReport.h"
#include "common/system/File.h"
#include "common/system/FileReplacement.h"
#include "common/system/Process.h"
#include "document/MetadataDocument.h"
#include "writer/NewVersion.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <mutex>
#include <optional>
#include <set>
#include <string_view>
#include <utility>

namespace ovisto {

namespace {

constexpr std::size_t kGroupFiles = 2048;
constexpr std::int64_t kGroupBytes = std::int64_t{128} * 1024 * 1024; ///< on their way to the disk at most

/// The new versions that wait to be put in place.
class Group {
public:
    /// `room` is shared by all groups that run at the same time.
    Group(const DocumentEdit& edit, const BatchOptions& options, const SparedFile& isSpared, ErrorReporter& reporter,
          const SavedFile& saved, std::shared_mutex& room)
        : m_edit(edit), m_options(options), m_isSpared(isSpared), m_reporter(reporter), m_saved(saved), m_room(room),
          m_share(room, std::defer_lock)
    {
    }

    std::size_t size() const { return m_members.size(); }
    std::int64_t bytes() const { return m_bytes; }

    /// Writes the new version of the file, if the change makes a difference. When the disk is full, all groups put
    /// theirs in place first, and the file has the room to itself.
    void add(const std::string& path)
    {
        if (!m_share.owns_lock())
            m_share.lock();
        if (!write(path, DiskFull::TryAgain)) {
            finish();
            const std::unique_lock whole(m_room);
            write(path, DiskFull::Fails);
            putInPlace();
        }
        shareIfNeeded();
    }

    /// Brings all of them to disk and puts those in place that it has.
    void finish()
    {
        putInPlace();
        shareIfNeeded();
    }

private:
    struct Member {
        explicit Member(std::string filePath) : path(std::move(filePath)) {}

        std::string path;
        FirstReport report;
        std::optional<NewVersion> version;
        int tries = 1;
        bool failed = false;
    };

    enum class DiskFull { TryAgain, Fails };

    /// False when the disk is full and the file should be tried again.
    bool write(const std::string& path, DiskFull onDiskFull, int tries = 1)
    {
        auto member = std::make_unique<Member>(path);
        member->tries = tries;
        ErrorTrap trap;
        trap.run([&] {
            const FileReading reading = readFile(path, m_options.reading);
            XmlDocument document = documentOf(reading.text);
            const EditResult result = m_edit(document, path, member->report);
            if (!result.changed && !result.clearance)
                return;
            const XmlDocument before = documentOf(reading.text);
            member->version.emplace(member->report, path,
                                    NewVersionOptions{ReadOnlyFails::AtOnce, m_isSpared, reading.identity});
            member->version->write(
                {m_options.way, before, document, documentReader(m_options.reading), result.clearance});
        });
        if (trap.pending() && trap.error().number == kDiskFull && onDiskFull == DiskFull::TryAgain)
            return false;
        if (trap.pending() && isToBeChangedAgain(*member, trap.error()))
            return write(path, onDiskFull, tries + 1);
        if (trap.pending()) {
            tell(*member, trap.error());
        } else if (member->version) {
            m_bytes += member->version->oldSize();
            m_members.push_back(std::move(member));
        }
        return true;
    }

    /// Puts all in place; then, if that is wanted, those anew that another program changed in the meantime.
    void putInPlace()
    {
        do {
            putMembersInPlace();
            for (const auto& [path, tries] : std::exchange(m_again, {}))
                write(path, DiskFull::Fails, tries + 1);
        } while (!m_members.empty());
    }

    void putMembersInPlace()
    {
        syncTogether();
        for (const auto& member : m_members)
            step(*member, [&] { member->version->bringToDisk(); });
        std::set<std::string> folders;
        for (const auto& member : m_members) {
            if (member->failed)
                continue;
            step(*member, [&] {
                folders.insert(member->version->folder());
                member->version->putInPlace();
                if (m_saved)
                    m_saved(member->path, member->version->receipt());
            });
        }
        for (const std::string& folder : folders)
            bringToDisk(folder);
        m_members.clear();
        m_bytes = 0;
    }

    bool isToBeChangedAgain(const Member& member, const Error& error) const
    {
        return m_options.onOtherChange == OnOtherChange::ChangeAgain && isFileWasChanged(error) &&
               member.tries < kMostTries;
    }

    void bringToDisk(const std::string& folder)
    {
        ErrorTrap trap;
        trap.run([&] { syncFolder(folder); });
        for (const auto& member : m_members) {
            if (trap.pending() && !member->failed && member->version->folder() == folder)
                ErrorReport(m_reporter, member->path, trap.error());
        }
    }

    /// A group takes part of the room as long as it has new versions.
    void shareIfNeeded()
    {
        if (m_members.empty() && m_share.owns_lock())
            m_share.unlock();
    }

    /// Brings all to disk at once where they are many enough.
    void syncTogether()
    {
        constexpr std::size_t kWorthIt = 8; // others may be writing to the disk, and would be waited for as well
        if (m_members.size() < kWorthIt)
            return;
        std::vector<NewVersion*> versions;
        for (const auto& member : m_members)
            versions.push_back(&*member->version);
        NewVersion::bringToDiskTogether(versions);
    }

    /// Runs a step for a file and reports what it raises.
    template <class Step> void step(Member& member, Step work)
    {
        ErrorTrap trap;
        trap.run(work);
        member.failed = trap.pending();
        if (trap.pending() && isToBeChangedAgain(member, trap.error()))
            m_again.emplace_back(member.path, member.tries);
        else if (trap.pending())
            tell(member, trap.error());
    }

    void tell(const Member& member, const Error& error)
    {
        ErrorReport(m_reporter, member.path, member.report.orElse(error));
    }

    const DocumentEdit& m_edit;
    const BatchOptions& m_options;
    const SparedFile& m_isSpared;
    ErrorReporter& m_reporter;
    const SavedFile& m_saved;
    std::shared_mutex& m_room; ///< on the disk; whichever holds it alone has all of it
    std::shared_lock<std::shared_mutex> m_share;
    std::vector<std::unique_ptr<Member>> m_members;
    std::int64_t m_bytes = 0;
    std::vector<std::pair<std::string, int>> m_again; ///< files that were changed meanwhile, and the tries so far
};

/// A file of a group keeps its old and its new version open. The rest of the process needs files too.
std::size_t groupSizeFor(unsigned jobs)
{
    constexpr std::size_t kOpenFiles = 2;
    const std::size_t allowed = openFilesAllowed(2 * kOpenFiles * kGroupFiles * jobs);
    return std::clamp<std::size_t>(allowed / (2 * kOpenFiles * jobs), 1, kGroupFiles);
}

} // namespace

BatchAction::BatchAction(const std::vector<std::string>& files, NodeChange change, const BatchOptions& options)
    : BatchAction(
          files,
          [change = std::move(change)](XmlDocument& document, const std::string& /*path*/, ErrorReporter& reporter) {
              return EditResult{.changed = applyChange(document, change, reporter).changed};
          },
          options)
{
}

BatchAction::BatchAction(const std::vector<std::string>& files, DocumentEdit edit, const BatchOptions& options)
    : m_files(files), m_edit(std::move(edit)), m_options(options), m_isSpared(sparing(files)),
      m_groupSize(groupSizeFor(options.jobs))
{
    std::vector<std::string> realPaths;
    realPaths.reserve(files.size());
    std::ranges::transform(files, std::back_inserter(realPaths), realPath);
    std::unordered_set<std::string_view> seen;
    for (std::size_t i = 0; i < realPaths.size(); ++i) {
        if (!seen.insert(realPaths[i]).second)
            m_repeated.insert(i);
    }
}

void BatchAction::run(std::size_t first, std::size_t last, Progress& progress, ErrorReporter& reporter,
                      const SavedFile& saved) const
{
    Group group(m_edit, m_options, m_isSpared, reporter, saved, m_room);
    for (std::size_t i = first; i < last; ++i) {
        const std::string& path = m_files[i];
        if (!progress.step(path, i, m_files.size()))
            break;
        // The second time a file comes along, what the first time made of it has to be there.
        if (group.size() >= m_groupSize || group.bytes() >= kGroupBytes || m_repeated.contains(i))
            group.finish();
        group.add(path);
    }
    group.finish();
}

} // namespace ovisto
