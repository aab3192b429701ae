// SPDX-License-Identifier: MIT

#include "cli/CommandLine.h"

#include "cli/Commands.h"
#include "cli/HelpText.h"
#include "cli/TerminalText.h"
#include "common/Error.h"
#include "common/Libraries.h"

#include <CLI/CLI.hpp>
#ifdef OVISTO_MIMALLOC
#include <mimalloc.h>
#endif

#include <cstdio>
#include <memory>
#include <string>
#include <vector>

namespace ovisto {

namespace {

/// In the order of the help.
constexpr Command (*kCommands[])() = {showCommand,  xmlCommand,    exportCommand, writeCommand,
                                      setCommand,   deleteCommand, addCommand,    checkCommand,
                                      cleanCommand, findCommand,   reportCommand};

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

/// The topics that --help explains.
std::string shortTopics()
{
    std::string text;
    for (const HelpTopic& topic : helpTopics()) {
        if (topic.isShort)
            text += std::string(topic.heading) + ":\n" + topic.text + "\n\n";
    }
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

CommandRuns declareCommands(CLI::App& app)
{
    app.name("ovisto-cli");
    app.description("Shows, exports and changes the metadata of JPEG files.");
    app.formatter(std::make_shared<HelpText>());
    app.failure_message(usageLine);
    app.set_help_flag("-h,--help", "Print this help and exit");
    app.set_version_flag("--version", versionText(), "Print the versions of the program and its libraries, and exit");
    app.footer(
        [] { return shortTopics() + "ovisto-cli COMMAND --help explains a command, man ovisto-cli all of them."; });
    app.require_subcommand(1);
    CommandRuns runs;
    for (const auto makeCommand : kCommands) {
        const Command command = makeCommand();
        CLI::App* parser = app.add_subcommand(command.name, command.description)->group("Commands");
        runs[parser] = command.declare(*parser);
    }
    return runs;
}

int runCommandLine(int argc, char** argv)
{
    CLI::App app;
    const CommandRuns runs = declareCommands(app);
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
