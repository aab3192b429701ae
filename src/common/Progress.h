#pragma once

#include <cstddef>
#include <string>

namespace ovisto {

/// Whoever watches a long loop over files: a dialog, a terminal, a test.
class Progress {
public:
    Progress() = default;
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    virtual ~Progress() = default;

    /// Told before each file, `done` of `total` being finished; a total of 0 is not known yet. False: the loop is to
    /// stop before this file.
    virtual bool step(const std::string& path, std::size_t done, std::size_t total) = 0;

    /// Told before each folder that a search for files goes into, as many may hold none. False: it is to stop.
    virtual bool enter(const std::string& /*folder*/) { return true; }

    /// Told behind the loop where work follows that cannot be stopped.
    virtual void endOfFiles() {}
};

} // namespace ovisto
