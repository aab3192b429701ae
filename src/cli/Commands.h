#pragma once

#include "cli/CommandLine.h"

namespace ovisto {

/// Does what the command line asks for, and returns the exit status.
int runCommand(const CommandLine& line);

} // namespace ovisto
