#pragma once

namespace ovisto {

// Ctrl+C, a terminal that is closed and a system that shuts down ask a program to end.

/// From now on the first of them does not end the program, so that it can finish what it has begun. The second one
/// does.
void deferInterruption();

/// Whether one has come since.
bool interrupted();

/// Ends the program the way it would have ended without deferInterruption(), so that whoever started it knows why. To
/// be called after one has come.
[[noreturn]] void endInterrupted();

} // namespace ovisto
