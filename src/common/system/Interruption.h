// SPDX-License-Identifier: MIT

#pragma once

namespace ovisto {

// Ctrl+C, a closed terminal and a system that shuts down ask a program to end (SIGINT, SIGHUP, SIGTERM). All this is
// about the whole process. Unless deferInterruption() is called, the library leaves signals alone.

/// From now on the first such request does not end the program, so that it can finish what it has begun. The second
/// one does.
void deferInterruption();

/// Whether a request has come since.
bool interrupted();

/// Looks whether a request has come in a loop that a hostile file can make long. No sound file makes one so long that
/// an answer would ever be true: what the program has begun on it, it finishes.
class LongLoop {
public:
    /// Call at each step.
    bool isInterrupted();

    /// The same, raising kInvalidCall.
    void step();

private:
    long m_steps = 0;
};

/// Ends the program as the request would have done without deferInterruption(), so that whatever started it knows why.
/// Call only after a request has come.
[[noreturn]] void endInterrupted();

} // namespace ovisto
