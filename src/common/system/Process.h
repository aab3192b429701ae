// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>

namespace ovisto {

// What the system knows about the running program and its user.

/// How many files the process may have open at the same time. Raises the limit to `wanted` where that is allowed.
std::size_t openFilesAllowed(std::size_t wanted);

/// From now on, writing beyond the largest file size that the process is allowed is an error, as on a full disk.
/// Without this call, it ends the program.
void outliveFileSizeLimit();

/// Gives standard input, output and error back to a process that was started without them. Call before a file is
/// opened: it would get the number of one that is closed, and what is printed would go into it. Nothing can be read or
/// written.
void occupyStandardStreams();

/// Whether the file at `path` is where standard output or standard error goes.
bool isStandardOutput(const std::string& path);

/// Whether standard error is a terminal.
bool isErrorOutputTerminal();

/// Full path of the running program.
std::string executablePath();

/// The folder in which the system keeps a user's program data.
std::string userDataRoot();

} // namespace ovisto
