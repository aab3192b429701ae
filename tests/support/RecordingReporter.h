// SPDX-License-Identifier: MIT

#pragma once

#include "common/ErrorReport.h"

#include <string>
#include <vector>

namespace ovisto::test {

/// Remembers what it was told.
class RecordingReporter : public ErrorReporter {
public:
    void report(const Phrase& context, const Error& error) override
    {
        contexts.push_back(inEnglish(context));
        numbers.push_back(error.number);
        reasons.push_back(inEnglish(error.description));
    }

    std::vector<std::string> contexts;
    std::vector<int> numbers;
    std::vector<std::string> reasons;
};

/// The number of the error that `step` raises; 0 for none.
template <class Step> int errorNumberOf(Step step)
{
    ErrorTrap trap;
    trap.run(step);
    return trap.pending() ? trap.take().number : 0;
}

} // namespace ovisto::test
