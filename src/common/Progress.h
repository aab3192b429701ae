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

    /// Told behind the loop where work follows that cannot be stopped.
    virtual void endOfFiles() {}
};

} // namespace ovisto
