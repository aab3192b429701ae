#include "cli/CommandLine.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <thread>

namespace ovisto {

namespace {

void addCommonOptions(CLI::App& command, CommandLine& line)
{
    command
        .add_option("--files-from", line.filesFrom, "Read more file names from FILE, one a line; - for standard input")
        ->option_text("FILE");
    command.add_flag("-0", line.zeroSeparated, "The names in --files-from end with NUL bytes");
    command.add_option("--dictionary", line.dictionary, "Use another tag dictionary")->option_text("FILE");
    command.add_option("--jobs", line.jobs, "Files worked on at the same time (default: one a core)")
        ->option_text("N")
        ->check(CLI::Range(1, 1024));
}

void addFiles(CLI::App& command, CommandLine& line)
{
    command.add_option("FILE", line.files, "JPEG files")->option_text(" ");
    addCommonOptions(command, line);
}

CLI::App& addCommand(CLI::App& app, CommandLine& line, Command number, const char* name, const char* description)
{
    CLI::App* command = app.add_subcommand(name, description);
    command->callback([&line, number] { line.command = number; });
    return *command;
}

void addNodePath(CLI::App& command, CommandLine& line)
{
    command.add_option("NODEPATH", line.nodePath, "The node, as in /JPEG/Exif[@id='FFE1']/IFD[@id='9C9B']")
        ->option_text(" ")
        ->required();
}

} // namespace

std::optional<CommandLine> parseCommandLine(int argc, char** argv, int& exitStatus)
{
    CommandLine line;
    line.jobs = std::max(1U, std::thread::hardware_concurrency());

    CLI::App app("Shows, exports and changes the metadata of JPEG files.\n"
                 "Exit status: 0 all done, 1 some file failed, 2 wrong usage.",
                 "ovisto-cli");
    app.set_version_flag("--version", "ovisto-cli " OVISTO_VERSION);
    app.require_subcommand(1);

    addFiles(addCommand(app, line, Command::Show, "show", "Show the properties as a tree"), line);
    app.get_subcommand("show")->add_flag("--technical", line.technical, "Show technical properties too");

    CLI::App& xml = addCommand(app, line, Command::Xml, "xml", "Write the metadata documents to standard output");
    addFiles(xml, line);
    xml.add_flag("!--no-maker-notes", line.keep.pCodifyMakerNote, "Leave out maker notes");
    xml.add_flag("!--no-thumbnails", line.keep.pCodifyThumb, "Leave out thumbnails");
    xml.add_flag("!--no-nonstandard-exif", line.keep.pCodifyExif1, "Leave out APP1 segments that are not Exif");

    addFiles(addCommand(app, line, Command::Export, "export", "Write FILE.XML beside each file"), line);

    CLI::App& write = addCommand(app, line, Command::Write, "write", "Write a file anew from its metadata document");
    write.add_option("--document", line.document, "The document to write, edited; else the file's own")
        ->option_text("XML");
    addFiles(write, line);

    CLI::App& set = addCommand(app, line, Command::Set, "set", "Set the value of a node, creating it where needed");
    addNodePath(set, line);
    set.add_option("VALUE", line.value, "The new value")->option_text(" ")->required();
    addFiles(set, line);

    CLI::App& remove = addCommand(app, line, Command::Delete, "delete", "Delete a node with all below it");
    addNodePath(remove, line);
    addFiles(remove, line);

    CLI::App& add = addCommand(app, line, Command::Add, "add", "Create a node with what it needs");
    addNodePath(add, line);
    addFiles(add, line);

    // The parser reports by exceptions of its own, help and version included; they end here.
    try {
        app.parse(argc, argv);
        if (line.files.empty() && line.filesFrom.empty())
            throw CLI::RequiredError("FILE");
        if (!line.document.empty() && (line.files.size() != 1 || !line.filesFrom.empty()))
            throw CLI::ValidationError("--document", "goes with exactly one FILE");
    } catch (const CLI::ParseError& error) {
        exitStatus = app.exit(error) == kAllDone ? kAllDone : kWrongUsage;
        return std::nullopt;
    }
    return line;
}

} // namespace ovisto
