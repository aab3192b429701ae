#include "cli/FileLoop.h"

#include "common/Error.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

namespace ovisto {

namespace {

/// The paths still to be worked on, and the results that wait for those before them.
class ResultQueue {
public:
    ResultQueue(const std::vector<std::string>& paths, unsigned jobs,
                const std::function<void(const FileResult&)>& finish, Progress& progress)
        : m_paths(paths), m_finish(finish), m_progress(progress), m_waiting(std::size_t{jobs} * kWaitingPerJob)
    {
    }

    /// The index of the next path; none when all are taken. Waits while too many results wait themselves.
    std::optional<std::size_t> take()
    {
        std::unique_lock lock(m_mutex);
        m_finishedMore.wait(lock, [&] { return m_stopped || m_taken < m_finished + m_waiting.size(); });
        if (m_stopped || m_taken == m_paths.size())
            return std::nullopt;
        return m_taken++;
    }

    /// Keeps the result of the path `index` and finishes all that is next in order.
    void put(std::size_t index, FileResult result)
    {
        const std::lock_guard lock(m_mutex);
        place(index) = std::move(result);
        while (!m_stopped && m_finished < m_taken && place(m_finished)) {
            m_stopped = !m_progress.step(m_paths[m_finished], m_finished, m_paths.size());
            if (m_stopped)
                break;
            m_finish(*std::exchange(place(m_finished), std::nullopt));
            ++m_finished;
        }
        m_finishedMore.notify_all();
    }

private:
    static constexpr std::size_t kWaitingPerJob = 16; // bounds the memory of results that wait for a slow one

    std::optional<FileResult>& place(std::size_t index) { return m_waiting[index % m_waiting.size()]; }

    const std::vector<std::string>& m_paths;
    const std::function<void(const FileResult&)>& m_finish;
    Progress& m_progress;
    std::mutex m_mutex;
    std::condition_variable m_finishedMore;
    std::vector<std::optional<FileResult>> m_waiting;
    std::size_t m_taken = 0;
    std::size_t m_finished = 0;
    bool m_stopped = false;
};

} // namespace

void forEachFile(const std::vector<std::string>& paths, unsigned jobs,
                 const std::function<FileResult(std::size_t index)>& work,
                 const std::function<void(const FileResult&)>& finish, Progress& progress)
{
    jobs = static_cast<unsigned>(std::clamp<std::size_t>(jobs, 1, std::max<std::size_t>(paths.size(), 1)));
    ResultQueue queue(paths, jobs, finish, progress);
    const auto workOn = [&] {
        while (const auto index = queue.take())
            queue.put(*index, work(*index));
    };
    std::vector<std::jthread> helpers;
    ErrorTrap trap; // a thread that the system refuses is done without
    for (unsigned i = 1; i < jobs && !trap.pending(); ++i)
        trap.run([&] { helpers.emplace_back(workOn); });
    workOn();
}

} // namespace ovisto
