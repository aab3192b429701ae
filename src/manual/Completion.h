// SPDX-License-Identifier: MIT

#pragma once

#include "manual/Description.h"

#include <string>
#include <vector>

namespace ovisto {

// What completes the command line of a program in a shell: a script of that shell, and in it, in place of the line
// "@TABLES@", what it has to know of the commands.

std::string bashCompletion(const std::string& script, const ProgramDescription& program,
                           const std::vector<NodeDescription>& nodes);
std::string zshCompletion(const std::string& script, const ProgramDescription& program,
                          const std::vector<NodeDescription>& nodes);
std::string fishCompletion(const std::string& script, const ProgramDescription& program,
                           const std::vector<NodeDescription>& nodes);

} // namespace ovisto
