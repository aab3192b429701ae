// SPDX-License-Identifier: MIT

#pragma once

#include "manual/Description.h"

#include <string>
#include <vector>

namespace ovisto {

/// What a manual page says of its program beyond its options.
struct ManualFacts {
    std::string version{};
    std::string date{};       ///< of the version: 2026-11-22
    std::string dataFolder{}; ///< where the data files are installed
};

/// ovisto-cli(1), in the language of man(7). `nodes` are those of the dictionary.
std::string commandManual(const ProgramDescription& program, const std::vector<NodeDescription>& nodes,
                          const ManualFacts& facts);

/// ovisto(1).
std::string windowManual(const ProgramDescription& program, const ManualFacts& facts);

} // namespace ovisto
