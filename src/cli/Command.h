// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <memory>

namespace CLI {
class App;
}

namespace ovisto {

/// Exit statuses of the program. If a signal asked it to end, it ends with that signal instead (130 or 143 in a shell).
inline constexpr int kAllDone = 0;
inline constexpr int kSomeFailed = 1;
inline constexpr int kWrongUsage = 2;

/// A command of the program.
struct Command {
    const char* name;
    const char* description;
    /// Declares the options of the command. Call the function that it returns after they have been read: it does the
    /// work and returns the exit status.
    std::function<std::function<int()>(CLI::App& parser)> declare;
};

/// A command with its own `Options`: `addOptions` declares them, `run` receives them.
template <class Options>
Command command(const char* name, const char* description, void (*addOptions)(CLI::App& parser, Options& options),
                int (*run)(const Options& options))
{
    const auto declare = [addOptions, run](CLI::App& parser) -> std::function<int()> {
        const auto options = std::make_shared<Options>();
        addOptions(parser, *options);
        return [options, run] { return run(*options); };
    };
    return {name, description, declare};
}

} // namespace ovisto
