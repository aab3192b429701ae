// SPDX-License-Identifier: MIT

#pragma once

#include "common/system/posix/SystemCalls.h"

#include <functional>
#include <string>
#include <vector>

namespace ovisto::test {

// What happens at a fault instead of an error number of the system.
inline constexpr int kHalf = -1;    ///< reads or writes half of the bytes only
inline constexpr int kNothing = -2; ///< reads or writes nothing, without an error

inline constexpr auto* kAnyCall = "*"; ///< each of them; one that was interrupted succeeds the next time

/// Which call goes wrong, and how. A call is written as the verb and the name of its file: "write ~a.jpg". The file
/// that replaces a.txt counts as ~a.txt, without the end of its name; its folder is "."; "create" opens a new file.
struct Fault {
    std::string call;
    int time = 1; ///< 1: the first such call; 0: each of them
    int error = 0;
    std::function<void()> meanwhile{}; ///< what another program does just before the call
};

/// Makes one of the calls that saving depends on go wrong, and keeps the list of them all. Nothing waits for the disk.
class FaultyCalls {
public:
    explicit FaultyCalls(Fault fault);
    FaultyCalls(const FaultyCalls&) = delete;
    FaultyCalls& operator=(const FaultyCalls&) = delete;
    ~FaultyCalls();

    /// All calls so far, in order; after one that was made to fail, its error number: "fsync ~a.jpg 5".
    static const std::vector<std::string>& log();

private:
    ReplacedSystemCalls m_replaced;
};

} // namespace ovisto::test
