// SPDX-License-Identifier: MIT

#pragma once

namespace ovisto {

/// Reads the command line and does what it asks for. Returns the exit status.
int runCommandLine(int argc, char** argv);

} // namespace ovisto
