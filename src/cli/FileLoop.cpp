// SPDX-License-Identifier: MIT

#include "cli/FileLoop.h"

#include "cli/TerminalText.h"
#include "common/Error.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

namespace ovisto {

namespace {

struct Task {
    std::size_t index;
    std::string path;
};

/// Where the files come from, and how many they are, 0 for not known yet.
struct Files {
    const FileSource& next;
    std::size_t total;
};

/// The files still to be worked on, and the results that wait for those before them.
class ResultQueue {
public:
    ResultQueue(const Files& files, unsigned jobs, const std::function<void(const FileResult&)>& finish,
                Progress& progress)
        : m_files(files), m_finish(finish), m_progress(progress), m_places(std::size_t{jobs} * kWaitingPerJob)
    {
    }

    /// The next file; none when all are taken. Waits while too many results wait themselves.
    std::optional<Task> take()
    {
        std::unique_lock lock(m_mutex);
        m_finishedMore.wait(lock, [&] { return m_ended || m_taken < m_finished + m_places.size(); });
        std::optional<std::string> path;
        if (!m_ended)
            m_failure.run([&] {
                path = m_files.next();
                if (path)
                    place(m_taken).path = *path;
            });
        m_ended = !path || m_failure.pending();
        if (m_ended)
            return std::nullopt;
        return Task{m_taken++, std::move(*path)};
    }

    /// Keeps the result of a file and finishes all that is next in order.
    void put(std::size_t index, FileResult result)
    {
        const std::lock_guard lock(m_mutex);
        place(index).result = std::move(result);
        while (m_finished < m_taken && place(m_finished).result) {
            m_failure.run([&] { finish(place(m_finished)); });
            place(m_finished++).result.reset();
        }
        m_ended = m_ended || m_failure.pending();
        m_finishedMore.notify_all();
    }

    /// Ends the loop because of an error that no single file caused.
    void end(Error error)
    {
        const std::lock_guard lock(m_mutex);
        m_failure.run([&] { throw Error(std::move(error)); });
        m_ended = true;
        m_finishedMore.notify_all();
    }

    /// Raises the error, if any, that ended the loop. Call when nothing is worked on any more.
    void raise() { m_failure.raise(); }

private:
    struct Place {
        std::string path;
        std::optional<FileResult> result;
    };

    static constexpr std::size_t kWaitingPerJob = 16; // bounds the memory of results that wait for a slow one

    void finish(const Place& place)
    {
        m_ended = !m_progress.step(place.path, m_finished, m_files.total) || m_ended;
        m_finish(*place.result);
    }

    Place& place(std::size_t index) { return m_places[index % m_places.size()]; }

    const Files& m_files;
    const std::function<void(const FileResult&)>& m_finish;
    Progress& m_progress;
    std::mutex m_mutex;
    std::condition_variable m_finishedMore;
    std::vector<Place> m_places;
    std::size_t m_taken = 0;
    std::size_t m_finished = 0;
    bool m_ended = false; ///< no other file is to be taken
    ErrorTrap m_failure;  ///< what no single file caused
};

/// The result of a file, whatever `work` raises: no exception leaves a thread.
FileResult resultOf(const Task& task, const std::function<FileResult(const Task&)>& work)
{
    FileResult result;
    ErrorTrap trap;
    trap.run([&] { result = work(task); });
    if (trap.pending())
        result.errors += errorLine(task.path, trap.take().description);
    return result;
}

void runLoop(const Files& files, unsigned jobs, const std::function<FileResult(const Task&)>& work,
             const std::function<void(const FileResult&)>& finish, Progress& progress)
{
    ResultQueue queue(files, jobs, finish, progress);
    const auto workOn = [&] {
        ErrorTrap trap;
        trap.run([&] {
            while (const auto task = queue.take())
                queue.put(task->index, resultOf(*task, work));
        });
        if (trap.pending())
            queue.end(trap.take());
    };
    {
        std::vector<std::jthread> helpers;
        ErrorTrap trap; // a thread that the system refuses is done without
        for (unsigned i = 1; i < jobs && !trap.pending(); ++i)
            trap.run([&] { helpers.emplace_back(workOn); });
        workOn();
    }
    queue.raise();
}

} // namespace

void forEachFile(const std::vector<std::string>& paths, unsigned jobs,
                 const std::function<FileResult(std::size_t index)>& work,
                 const std::function<void(const FileResult&)>& finish, Progress& progress)
{
    auto path = paths.begin();
    const FileSource next = [&] { return path == paths.end() ? std::nullopt : std::optional(*path++); };
    jobs = static_cast<unsigned>(std::clamp<std::size_t>(jobs, 1, std::max<std::size_t>(paths.size(), 1)));
    runLoop(
        {next, paths.size()}, jobs, [&](const Task& task) { return work(task.index); }, finish, progress);
}

void forEachFile(const FileSource& next, unsigned jobs, const std::function<FileResult(const std::string& path)>& work,
                 const std::function<void(const FileResult&)>& finish, Progress& progress)
{
    constexpr std::size_t kUnknown = 0;
    runLoop(
        {next, kUnknown}, jobs, [&](const Task& task) { return work(task.path); }, finish, progress);
}

} // namespace ovisto
