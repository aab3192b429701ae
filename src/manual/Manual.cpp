// SPDX-License-Identifier: MIT

#include "manual/Manual.h"

#include "cli/CommandLine.h"
#include "common/ErrorReport.h"
#include "common/Libraries.h"
#include "common/system/File.h"
#include "common/system/ProgramFolder.h"
#include "manual/Completion.h"
#include "manual/ManPage.h"

#include <CLI/CLI.hpp>

#include <cstdio>

namespace ovisto {

namespace {

/// What the build says.
struct Build {
    std::string scripts;    ///< the folder of the scripts for the shells
    std::string output;     ///< the folder to write to
    std::string windowHelp; ///< a file with what `ovisto --help` prints; empty without a window
    ManualFacts facts{.version = programVersion()};
};

void writeAll(const Build& build)
{
    CLI::App app;
    declareCommands(app);
    const ProgramDescription program = describe(app);
    const TagDictionary dictionary(ProgramFolder().data + "Merovel.xml");
    const std::vector<NodeDescription> nodes = describeNodes(dictionary);
    const auto script = [&](const char* name) { return readTextFile(build.scripts + name); };
    const auto write = [&](const char* name, const std::string& text) { writeTextFile(build.output + name, text); };
    write("ovisto-cli.1", commandManual(program, nodes, build.facts));
    write("ovisto-cli", bashCompletion(script("ovisto-cli.bash"), program, nodes));
    write("_ovisto-cli", zshCompletion(script("ovisto-cli.zsh"), program, nodes));
    write("ovisto-cli.fish", fishCompletion(script("ovisto-cli.fish"), program, nodes));
    if (!build.windowHelp.empty())
        write("ovisto.1", windowManual(describeWindow(readTextFile(build.windowHelp)), build.facts));
}

} // namespace

int writeManual(int argc, char** argv)
{
    Build build;
    ErrorTrap trap;
    trap.run([&] {
        CLI::App options("Writes the manual pages and the completions.");
        options.add_option("--scripts", build.scripts)->required();
        options.add_option("--output", build.output)->required();
        options.add_option("--date", build.facts.date)->required();
        options.add_option("--data-folder", build.facts.dataFolder)->required();
        options.add_option("--window-help", build.windowHelp);
        options.parse(argc, argv);
        writeAll(build);
    });
    if (trap.pending())
        std::fputs((inEnglish(trap.error().description) + "\n").c_str(), stderr);
    return trap.pending() ? 1 : 0;
}

} // namespace ovisto
