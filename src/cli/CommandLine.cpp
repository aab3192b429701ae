// SPDX-License-Identifier: MIT

#include "cli/CommandLine.h"

#include "cli/Commands.h"
#include "cli/TerminalText.h"
#include "common/Error.h"
#include "common/Libraries.h"

#include <CLI/CLI.hpp>
#ifdef OVISTO_MIMALLOC
#include <mimalloc.h>
#endif

#include <cstdio>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace ovisto {

namespace {

/// In the order of the help.
constexpr Command (*kCommands[])() = {showCommand,  xmlCommand,    exportCommand, writeCommand,
                                      setCommand,   deleteCommand, addCommand,    checkCommand,
                                      cleanCommand, findCommand,   reportCommand};

/// The help as people write it: an option that switches something off shows no value, and FILE stands for at least one.
class HelpText : public CLI::Formatter {
public:
    std::string make_option_name(const CLI::Option* option, bool isPositional) const override
    {
        constexpr std::string_view kSwitchedOff = "{false}";
        std::string name = Formatter::make_option_name(option, isPositional);
        if (name.ends_with(kSwitchedOff))
            name.erase(name.size() - kSwitchedOff.size());
        return name;
    }

    std::string make_option_usage(const CLI::Option* option) const override
    {
        const std::string name = make_option_name(option, true);
        return name == "FILE" ? "FILE..." : Formatter::make_option_usage(option);
    }
};

/// The versions of the program and of the libraries that it is made of, one a line.
std::string versionText()
{
    std::vector<Library> libraries = engineLibraries();
    libraries.push_back({"CLI11", CLI11_VERSION});
#ifdef OVISTO_MIMALLOC
    const int version = mi_version();
    libraries.push_back({"mimalloc", std::to_string(version / 100) + "." + std::to_string(version / 10 % 10) + "." +
                                         std::to_string(version % 10)});
#endif
    std::string text = std::string("ovisto-cli ") + programVersion();
    for (const Library& library : libraries)
        text += "\n" + library.name + " " + library.version;
    return text;
}

/// The line about wrong usage.
std::string usageLine(const CLI::App* app, const CLI::Error& error)
{
    std::string program = "ovisto-cli";
    for (const CLI::App* command : app->get_subcommands())
        program += " " + command->get_name();
    return errorLine("", std::string(error.what()) + "; see " + program + " --help");
}

} // namespace

int runCommandLine(int argc, char** argv)
{
    CLI::App app("Shows, exports and changes the metadata of JPEG files.\n"
                 "Exit status: 0 all done, 1 some file failed, 2 wrong usage.\n"
                 "Ctrl+C (or SIGTERM, SIGHUP) ends the commands that write files after the file at hand, without\n"
                 "a half-written one, and a second one ends them at once.",
                 "ovisto-cli");
    app.formatter(std::make_shared<HelpText>());
    app.failure_message(usageLine);
    app.set_version_flag("--version", versionText());
    app.require_subcommand(1);
    std::map<const CLI::App*, std::function<int()>> runs;
    for (const auto makeCommand : kCommands) {
        const Command command = makeCommand();
        CLI::App* parser = app.add_subcommand(command.name, command.description);
        runs[parser] = command.declare(*parser);
    }
    // The parser reports by exceptions of its own, help and version included; they end here.
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == kAllDone ? kAllDone : kWrongUsage;
    }
    int status = kSomeFailed;
    ErrorTrap trap;
    trap.run([&] { status = runs.at(app.get_subcommands().front())(); });
    if (trap.pending())
        std::fputs(errorLine("", trap.take().description).c_str(), stderr);
    return status;
}

} // namespace ovisto
