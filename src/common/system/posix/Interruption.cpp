// SPDX-License-Identifier: MIT

#include "common/system/Interruption.h"

#include <atomic>
#include <csignal>
#include <cstdlib>

namespace ovisto {

namespace {

constexpr int kSignals[] = {SIGINT, SIGTERM, SIGHUP};

std::atomic<int> receivedSignal = 0;
static_assert(std::atomic<int>::is_always_lock_free, "a signal handler must not wait");

void receive(int number)
{
    receivedSignal = number;
    for (const int each : kSignals) {
        struct sigaction action = {};
        if (sigaction(each, nullptr, &action) == 0 && action.sa_handler == receive)
            std::signal(each, SIG_DFL);
    }
}

} // namespace

void deferInterruption()
{
    for (const int each : kSignals) {
        struct sigaction action = {};
        // The program may have been started so that it ignores one: by nohup, or a shell in the background.
        if (sigaction(each, nullptr, &action) != 0 || action.sa_handler == SIG_IGN)
            continue;
        action = {};
        action.sa_handler = receive;
        action.sa_flags = SA_RESTART;
        sigaction(each, &action, nullptr);
    }
}

bool interrupted()
{
    return receivedSignal != 0;
}

void endInterrupted()
{
    constexpr int kEndedBySignal = 128; // what a shell adds
    std::raise(receivedSignal);
    std::_Exit(kEndedBySignal + receivedSignal);
}

} // namespace ovisto
