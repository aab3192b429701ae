#pragma once

#include "common/ErrorReport.h"
#include "common/Progress.h"
#include "document/NodeChange.h"

#include <cstddef>
#include <shared_mutex>
#include <string>
#include <unordered_set>
#include <vector>

namespace ovisto {

/// Makes one change to many JPEG files, all parts of each kept. A file that has it already is not written. The new
/// versions take the places of the old ones in groups: written, then brought to disk together, then put in place. A
/// file is safe at every moment as if it were written alone; it is the disk that has less to wait for. A disk that is
/// full with a group gets the files of the group put in place, which makes room, before a file fails because of it.
class BatchAction {
public:
    /// `files` must outlive the object. A path may occur in it more than once. `jobs`: how many stretches of them are
    /// to run at the same time.
    BatchAction(const std::vector<std::string>& files, NodeChange change, unsigned jobs = 1);

    /// How many files are written before the first one is put in place.
    std::size_t groupSize() const { return m_groupSize; }

    /// Changes all files. `progress` is told before each; when it stops, the files before are still put in place.
    /// `reporter` is told of each file that failed once, in the context of its path, which is as it was then. A file
    /// whose temporary name is that of another one in the list fails, as it would destroy that.
    /// The run goes on with the files that are left. Who wants it to end with the first failure stops at the next step
    /// of the progress.
    void run(Progress& progress, ErrorReporter& reporter) const { run(0, m_files.size(), progress, reporter); }

    /// The same for the files from index `first` on, before `last`. Stretches that have no file in common may run at
    /// the same time, each with a reporter of its own.
    void run(std::size_t first, std::size_t last, Progress& progress, ErrorReporter& reporter) const;

private:
    const std::vector<std::string>& m_files;
    NodeChange m_change;
    std::size_t m_groupSize;
    std::unordered_set<std::size_t> m_overwriting; ///< those with the temporary name of another one
    mutable std::shared_mutex m_room;              ///< on the disk: shared by the stretches
    std::unordered_set<std::size_t> m_repeated;    ///< those that were there before, by this or another name
};

/// The indexes of those of `realPaths` whose temporary name while they are written is another of them.
std::unordered_set<std::size_t> overwritingOthers(const std::vector<std::string>& realPaths);
/// What is said of such a file.
Error overwritingError();

} // namespace ovisto
