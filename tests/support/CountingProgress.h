// SPDX-License-Identifier: MIT

#pragma once

#include "common/Progress.h"

#include <string>
#include <vector>

namespace ovisto::test {

/// Remembers the files it was told of, and stops at one of them.
class CountingProgress : public Progress {
public:
    explicit CountingProgress(std::size_t steps = 1'000'000) : m_steps(steps) {}

    bool step(const std::string& path, std::size_t done, std::size_t total) override
    {
        paths.push_back(path);
        places.push_back(std::to_string(done) + "/" + std::to_string(total));
        return paths.size() <= m_steps;
    }

    std::vector<std::string> paths;
    std::vector<std::string> places;

private:
    std::size_t m_steps;
};

} // namespace ovisto::test
