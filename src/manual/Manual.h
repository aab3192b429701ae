// SPDX-License-Identifier: MIT

#pragma once

namespace ovisto {

/// Writes the manual pages and what completes the command line in shells, from the options that the programs declare.
/// The build calls it with the folders. Returns the exit status.
int writeManual(int argc, char** argv);

} // namespace ovisto
