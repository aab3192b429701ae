#include "cli/BatchRun.h"

#include "cli/FileLoop.h"
#include "common/system/Interruption.h"

#include <algorithm>

namespace ovisto {

namespace {

/// Progress over files where the loop counts stretches of them.
class StretchProgress : public Progress {
public:
    StretchProgress(Progress& files, std::size_t stretch, std::size_t total)
        : m_files(files), m_stretch(stretch), m_total(total)
    {
    }

    bool step(const std::string& path, std::size_t done, std::size_t /*total*/) override
    {
        return m_files.step(path, done * m_stretch, m_total);
    }

private:
    Progress& m_files;
    std::size_t m_stretch;
    std::size_t m_total;
};

/// Progress within a stretch, which is not shown.
class UnwatchedProgress : public Progress {
public:
    bool step(const std::string& /*path*/, std::size_t /*done*/, std::size_t /*total*/) override
    {
        return !interrupted();
    }
};

} // namespace

BatchOptions batchOptions(const WritingOptions& writing, unsigned jobs)
{
    return {.way = writing.way(),
            .reading = writing.reading(),
            .jobs = jobs,
            .onOtherChange = writing.force ? OnOtherChange::ChangeAgain : OnOtherChange::Refuse};
}

void runBatch(const BatchAction& batch, const std::vector<std::string>& files, unsigned jobs,
              const WritingOptions& writing, CommandOutput& output,
              const std::function<bool(const SaveReceipt&)>& isDone)
{
    // A thread takes a whole group at a time, unless others would have nothing to do.
    const std::size_t fair = (files.size() + jobs - 1) / jobs;
    const std::size_t stretch = std::clamp<std::size_t>(fair, 1, batch.groupSize());
    std::vector<std::string> firstFiles;
    for (std::size_t i = 0; i < files.size(); i += stretch)
        firstFiles.push_back(files[i]);
    const auto work = [&](std::size_t index) {
        FileResult result;
        LineReporter reporter(result.errors);
        UnwatchedProgress unwatched;
        const std::size_t first = index * stretch;
        const SavedFile saved = [&](const std::string& path, const SaveReceipt& receipt) {
            result.notes += savedLines(writing, path, receipt);
            result.failed = result.failed || (isDone && !isDone(receipt));
        };
        batch.run(first, std::min(first + stretch, files.size()), unwatched, reporter, saved);
        return result;
    };
    StretchProgress progress(output.progress(), stretch, files.size());
    forEachFile(
        firstFiles, jobs, work, [&](const FileResult& result) { output.write(result); }, progress);
}

} // namespace ovisto
