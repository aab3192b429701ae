// SPDX-License-Identifier: MIT

#pragma once

#include "collection/DocumentSaving.h"
#include "common/ErrorReport.h"
#include "common/Progress.h"
#include "document/NodeChange.h"
#include "writer/DocumentSave.h"

#include <cstddef>
#include <functional>
#include <shared_mutex>
#include <string>
#include <unordered_set>
#include <vector>

namespace ovisto {

/// Called with the path of a file that was saved, and what became of it, by the thread that runs its stretch.
using SavedFile = std::function<void(const std::string& path, const SaveReceipt& receipt)>;

/// What to do with a file that another program changes between the moments when it is read and when it is replaced.
enum class OnOtherChange {
    Refuse,     ///< it fails
    ChangeAgain ///< it is read again and changed as it is now
};

/// How a batch changes its files.
struct BatchOptions {
    WritingWay way = WritingWay::Keep;
    Reading reading = Reading::Basic; ///< Full, unless it is rebuilding, which needs basic documents
    unsigned jobs = 1; ///< how many stretches of the files you will run at the same time, each on a thread of yours
    OnOtherChange onOtherChange = OnOtherChange::Refuse;
};

/// What an edit did to a document.
struct EditResult {
    bool changed = false;     ///< whether the document says something else now
    Clearance clearance = {}; ///< what else the save has to take away
};

/// Edits the document of the file at `path`. Called by all threads that run stretches, at the same time. What goes
/// wrong is reported to `reporter`, and raised.
using DocumentEdit = std::function<EditResult(XmlDocument& document, const std::string& path, ErrorReporter& reporter)>;

/// Makes one change to many JPEG files, keeping all parts of each. A file that already has the change is not written.
/// New versions are written in groups, brought to disk together, then put in place: much less waiting for the disk, and
/// each file as safe at every moment as if it were saved alone. When the disk is full, the groups are put in place,
/// which makes room, and the file is tried once more before it fails.
class BatchAction {
public:
    /// `files` (paths, bytes as the system gives them) must outlive the object. A path may occur in it more than once.
    /// objection() says whether `change` can be made to any file.
    BatchAction(const std::vector<std::string>& files, NodeChange change, const BatchOptions& options = {});
    /// The same with any edit of their documents.
    BatchAction(const std::vector<std::string>& files, DocumentEdit edit, const BatchOptions& options);

    /// How many files are written before the first one is put in place.
    std::size_t groupSize() const { return m_groupSize; }

    /// Changes all files, one Progress::step() before each; when that returns false, the files before are still put in
    /// place. Each failed file is reported once, with its path as context, and is left unchanged; the run goes on. To
    /// stop after a failure, return false from the next step. Files that are saved but not known to be on disk are
    /// reported too.
    void run(Progress& progress, ErrorReporter& reporter, const SavedFile& saved = {}) const
    {
        run(0, m_files.size(), progress, reporter, saved);
    }

    /// The same for the files from index `first` (0 is the first) up to, not including, `last`. Stretches without a
    /// file in common may run at the same time, each with a reporter of its own.
    void run(std::size_t first, std::size_t last, Progress& progress, ErrorReporter& reporter,
             const SavedFile& saved = {}) const;

private:
    const std::vector<std::string>& m_files;
    DocumentEdit m_edit;
    BatchOptions m_options;
    SparedFile m_isSpared;
    std::size_t m_groupSize;
    mutable std::shared_mutex m_room;           ///< on the disk, shared by the stretches
    std::unordered_set<std::size_t> m_repeated; ///< earlier in the list under this or another name
};

} // namespace ovisto
