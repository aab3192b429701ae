// SPDX-License-Identifier: MIT

#pragma once

#include "common/Error.h"

#include <type_traits>
#include <utility>

namespace ovisto {

/// Receives error reports: a message box, a terminal, a test. It is called on the thread that does the work, so threads
/// that work at the same time need a reporter each. A program that only looks at what is raised passes a FirstReport.
class ErrorReporter {
public:
    ErrorReporter() = default;
    ErrorReporter(const ErrorReporter&) = delete;
    ErrorReporter& operator=(const ErrorReporter&) = delete;
    virtual ~ErrorReporter() = default;

    /// `context`: the operation and the file concerned, or a whole message. May be empty.
    virtual void report(const Phrase& context, const Error& error) = 0;
};

/// Reports `error`, which happened in `context`, to `reporter`.
void ErrorReport(ErrorReporter& reporter, const Phrase& context, const Error& error);

/// Reports the error that `trap` holds, if any, in `context`: a phrase, or what makes it, where many steps come along
/// and hardly any fails.
template <class Context> void reportPending(ErrorReporter& reporter, const Context& context, const ErrorTrap& trap)
{
    if (!trap.pending())
        return;
    if constexpr (std::is_invocable_v<Context>)
        ErrorReport(reporter, context(), trap.error());
    else
        ErrorReport(reporter, context, trap.error());
}

/// Runs `step`, and reports the error that it raises in `context`. Returns whether it succeeded.
template <class Context, class Step> bool attempt(ErrorReporter& reporter, const Context& context, Step&& step)
{
    ErrorTrap trap;
    trap.run(std::forward<Step>(step));
    reportPending(reporter, context, trap);
    return !trap.pending();
}

/// The same, but raises the error again.
template <class Context, class Step> void reported(ErrorReporter& reporter, const Context& context, Step&& step)
{
    ErrorTrap trap;
    trap.run(std::forward<Step>(step));
    reportPending(reporter, context, trap);
    trap.raise();
}

/// What a message box shows for the error: context, CR LF, number, " : ", description.
Phrase errorReportText(const Phrase& context, const Error& error);

} // namespace ovisto
