#pragma once

#include <functional>
#include <memory>

namespace CLI {
class App;
}

namespace ovisto {

/// Exit statuses of the program, unless it was asked to end: it then ends by that signal (130, 143 to a shell).
inline constexpr int kAllDone = 0;
inline constexpr int kSomeFailed = 1;
inline constexpr int kWrongUsage = 2;

/// A command of the program.
struct Command {
    const char* name;
    const char* description;
    /// Declares the options of the command. What it returns is called once they have been read: it does the work and
    /// returns the exit status.
    std::function<std::function<int()>(CLI::App& parser)> declare;
};

/// A command with `Options` of its own, which `addOptions` declares and `run` gets as they were read.
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
