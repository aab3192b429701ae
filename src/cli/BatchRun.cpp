// SPDX-License-Identifier: MIT

#include "cli/BatchRun.h"

#include "cli/FileLoop.h"
#include "cli/TerminalText.h"
#include "common/system/Interruption.h"

#include <algorithm>
#include <atomic>

namespace ovisto {

namespace {

/// Shows how far a batch is, file by file, whatever stretch of them a file is in.
class BatchProgress : public Progress {
public:
    BatchProgress(Progress& shown, std::size_t total, UndoneFiles& undone)
        : m_shown(shown), m_total(total), m_undone(undone)
    {
    }

    bool step(const std::string& path, std::size_t index, std::size_t /*total*/) override
    {
        if (!m_shown.step(path, m_begun, m_total))
            return false;
        m_undone.setReached(index);
        ++m_begun;
        return true;
    }

    std::size_t begun() const { return m_begun; }

private:
    Progress& m_shown;
    std::size_t m_total;
    UndoneFiles& m_undone;
    std::atomic<std::size_t> m_begun = 0;
};

/// Progress over stretches of files, which is not shown.
class UnwatchedProgress : public Progress {
public:
    bool step(const std::string& /*path*/, std::size_t /*done*/, std::size_t /*total*/) override
    {
        return !interrupted();
    }
};

/// Turns each report of a failed file into a line, and notes and counts them.
class CountingReporter : public LineReporter {
public:
    CountingReporter(std::string& lines, UndoneFiles& undone) : LineReporter(lines), m_undone(undone) {}

    void report(const Phrase& context, const Error& error) override
    {
        ++count;
        m_undone.addFailed(inEnglish(context));
        LineReporter::report(context, error);
    }

    std::size_t count = 0;

private:
    UndoneFiles& m_undone;
};

} // namespace

BatchOptions batchOptions(const WritingOptions& writing, unsigned jobs)
{
    return {.way = writing.way(),
            .reading = writing.reading(),
            .jobs = jobs,
            .onOtherChange = writing.force ? OnOtherChange::ChangeAgain : OnOtherChange::Refuse};
}

void UndoneFiles::addFailed(const std::string& path)
{
    const std::lock_guard lock(m_mutex);
    m_failed.insert(path);
}

std::vector<std::string> UndoneFiles::names() const
{
    std::vector<std::string> names;
    for (std::size_t i = 0; i < m_files.size(); ++i) {
        if (!m_reached[i] || m_failed.contains(m_files[i]))
            names.push_back(m_files[i]);
    }
    return names;
}

BatchCounts runBatch(const BatchAction& batch, const std::vector<std::string>& files, unsigned jobs,
                     const WritingOptions& writing, CommandOutput& output, UndoneFiles& undone,
                     const std::function<bool(const SaveReceipt&)>& isDone)
{
    // A thread takes a whole group at a time, unless others would have nothing to do.
    const std::size_t fair = (files.size() + jobs - 1) / jobs;
    const std::size_t stretch = std::clamp<std::size_t>(fair, 1, batch.groupSize());
    std::vector<std::string> firstFiles;
    for (std::size_t i = 0; i < files.size(); i += stretch)
        firstFiles.push_back(files[i]);
    BatchProgress progress(output.progress(), files.size(), undone);
    std::atomic<std::size_t> changed = 0;
    std::atomic<std::size_t> failed = 0;
    const auto work = [&](std::size_t index) {
        FileResult result;
        CountingReporter reporter(result.errors, undone);
        const std::size_t first = index * stretch;
        const SavedFile saved = [&](const std::string& path, const SaveReceipt& receipt) {
            result.notes += savedLines(writing, path, receipt);
            if (isDone && !isDone(receipt)) {
                result.failed = true;
                undone.addFailed(path);
            }
            ++changed;
        };
        const std::size_t last = std::min(first + stretch, files.size());
        ErrorTrap trap;
        trap.run([&] { batch.run(first, last, progress, reporter, saved); });
        for (std::size_t i = first; trap.pending() && i < last; ++i)
            undone.setReached(i, false); // nobody knows how far it came
        trap.raise();
        failed += reporter.count;
        return result;
    };
    UnwatchedProgress unwatched;
    forEachFile(
        firstFiles, jobs, work, [&](const FileResult& result) { output.write(result); }, unwatched);
    return {.begun = progress.begun(), .changed = changed, .failed = failed, .total = files.size()};
}

std::string countsText(const BatchCounts& counts)
{
    const std::size_t rest = counts.begun - std::min(counts.begun, counts.changed + counts.failed);
    const std::string unchanged = rest > 0 ? groupedNumber(rest) + " unchanged, " : std::string();
    return groupedNumber(counts.changed) + " changed, " + unchanged + groupedNumber(counts.failed) + " failed";
}

} // namespace ovisto
