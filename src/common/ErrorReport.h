#pragma once

#include "common/Error.h"

#include <string>
#include <type_traits>

namespace ovisto {

/// Whoever tells a person about an error: a message box, a terminal, a test.
class ErrorReporter {
public:
    ErrorReporter() = default;
    ErrorReporter(const ErrorReporter&) = delete;
    ErrorReporter& operator=(const ErrorReporter&) = delete;
    virtual ~ErrorReporter() = default;

    /// `context`: the operation and the file concerned, or a whole message. May be empty.
    virtual void report(const std::string& context, const Error& error) = 0;
};

/// Tells `reporter` that `error` happened in `context`.
void ErrorReport(ErrorReporter& reporter, const std::string& context, const Error& error);

/// Runs `step`. The error that it raises is reported in `context`, and raised again for the caller. `context`: a text,
/// or what makes it, where many steps come along and hardly any fails.
template <class Context, class Step> void reported(ErrorReporter& reporter, const Context& context, Step&& step)
{
    ErrorTrap trap;
    trap.run(std::forward<Step>(step));
    if (!trap.pending())
        return;
    if constexpr (std::is_invocable_v<Context>)
        ErrorReport(reporter, context(), trap.error());
    else
        ErrorReport(reporter, context, trap.error());
    trap.raise();
}

/// What a message box shows for the error: context, CR LF, number, " : ", description.
std::string errorReportText(const std::string& context, const Error& error);

} // namespace ovisto
