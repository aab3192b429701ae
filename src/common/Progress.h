// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>

namespace ovisto {

/// Watches a long loop over files: a dialog, a terminal, a test. It is called on the thread that runs the loop. Paths
/// are bytes as the system gives them.
class Progress {
public:
    Progress() = default;
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    virtual ~Progress() = default;

    /// Called before each file, when `done` of `total` files are finished; a total of 0 is not known yet. Return false
    /// to stop the loop before this file.
    virtual bool step(const std::string& path, std::size_t done, std::size_t total) = 0;

    /// Called before a search enters a folder, because many folders may hold no file. Return false to stop it.
    virtual bool enter(const std::string& /*folder*/) { return true; }

    /// Called after the loop if work follows that cannot be stopped.
    virtual void endOfFiles() {}
};

} // namespace ovisto
