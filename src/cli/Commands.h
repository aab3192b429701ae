// SPDX-License-Identifier: MIT

#pragma once

#include "cli/Command.h"

#include <string>
#include <vector>

namespace ovisto {

// All commands. A new one is a function that returns it, in a file of its own, and a row of the table in
// CommandLine.cpp.

Command showCommand();
Command xmlCommand();
Command exportCommand();
Command writeCommand();
Command setCommand();
Command deleteCommand();
Command addCommand();
Command checkCommand();
Command cleanCommand();
Command findCommand();
Command reportCommand();

/// The names that --style has for the style sheets that come with the program.
std::vector<std::string> styleSheetNames();

} // namespace ovisto
