// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <map>

namespace CLI {
class App;
}

namespace ovisto {

/// What each command does once its options are read. Returns the exit status.
using CommandRuns = std::map<const CLI::App*, std::function<int()>>;

/// Declares the program and all its commands in `app`.
CommandRuns declareCommands(CLI::App& app);

/// Reads the command line and does what it asks for. Returns the exit status.
int runCommandLine(int argc, char** argv);

} // namespace ovisto
