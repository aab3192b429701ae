#pragma once

namespace ovisto {

// Ctrl+C, a closed terminal and a system that shuts down ask a program to end.

/// From now on the first such request does not end the program, so that it can finish what it has begun. The second
/// one does.
void deferInterruption();

/// Whether a request has come since.
bool interrupted();

/// Ends the program as the request would have done without deferInterruption(), so that whatever started it knows why.
/// Call only after a request has come.
[[noreturn]] void endInterrupted();

} // namespace ovisto
