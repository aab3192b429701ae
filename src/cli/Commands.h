// SPDX-License-Identifier: MIT

#pragma once

#include "cli/Command.h"

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

} // namespace ovisto
