// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

namespace ovisto::test {

/// What a program did.
struct CommandRun {
    int status = -1;
    std::string output;
    std::string errors;
};

/// Runs a program with these arguments, `input` on its standard input.
CommandRun runCommand(const std::vector<std::string>& arguments, const std::string& input = {});

/// Whether a program can be started by its name.
bool isInstalled(const std::string& program);

} // namespace ovisto::test
