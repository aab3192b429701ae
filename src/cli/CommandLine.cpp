#include "cli/CommandLine.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <thread>

namespace ovisto {

namespace {

void addJobs(CLI::App& command, CommandLine& line)
{
    command.add_option("--jobs", line.jobs, "Files worked on at the same time (default: one a core)")
        ->option_text("N")
        ->check(CLI::Range(1, 1024));
}

void addKeepOptions(CLI::App& command, CommandLine& line)
{
    command.add_flag("!--no-maker-notes", line.keep.pCodifyMakerNote, "Leave out maker notes");
    command.add_flag("!--no-thumbnails", line.keep.pCodifyThumb, "Leave out thumbnails");
    command.add_flag("!--no-nonstandard-exif", line.keep.pCodifyExif1, "Leave out APP1 segments that are not Exif");
}

void addCommonOptions(CLI::App& command, CommandLine& line)
{
    command
        .add_option("--files-from", line.filesFrom, "Read more file names from FILE, one a line; - for standard input")
        ->option_text("FILE");
    command.add_flag("-0", line.zeroSeparated,
                     "Names end with NUL bytes, not line ends: those in --files-from, those that find prints");
    command
        .add_option("--dictionary", line.dictionary,
                    "Another tag dictionary for the commands that need one: show, set, delete, add")
        ->option_text("FILE");
    addJobs(command, line);
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

void addScan(CLI::App& command, CommandLine& line)
{
    ScanOptions& scan = line.scan;
    command
        .add_option("FOLDER", scan.folder,
                    "Where to look; not needed with --files-from, whose files are taken by any name")
        ->option_text(" ");
    command.add_option("--pattern", scan.patterns, "Names of files: * any run, ? one character, ; between patterns")
        ->option_text("P [" + scan.patterns + "]");
    command
        .add_option("--words", scan.content.words,
                    "Words that the metadata contains, any one of them; , between words. Names of tags count too")
        ->option_text("W");
    command.add_flag("--all-words", scan.content.allWords, "All of the words");
    command.add_flag("--whole-words", scan.content.wholeWords, "Not as parts of longer words");
    command.add_flag("--regexp", scan.content.regExp, "W is a regular expression, not a list of words");
    command.add_flag("!--no-subfolders", scan.subFolders, "Only in FOLDER itself");
    addCommonOptions(command, line);
}

} // namespace

std::optional<CommandLine> parseCommandLine(int argc, char** argv, int& exitStatus)
{
    CommandLine line;
    line.jobs = std::max(1U, std::thread::hardware_concurrency());

    CLI::App app("Shows, exports and changes the metadata of JPEG files.\n"
                 "Exit status: 0 all done, 1 some file failed, 2 wrong usage.\n"
                 "Ctrl+C (or SIGTERM, SIGHUP) ends the commands that write files after the file at hand, without\n"
                 "a half-written one, and a second one ends them at once.",
                 "ovisto-cli");
    app.set_version_flag("--version", "ovisto-cli " OVISTO_VERSION);
    app.require_subcommand(1);

    addFiles(addCommand(app, line, Command::Show, "show", "Show the properties as a tree"), line);
    app.get_subcommand("show")->add_flag("--technical", line.technical, "Show technical properties too");

    CLI::App& xml = addCommand(app, line, Command::Xml, "xml", "Write the metadata documents to standard output");
    addFiles(xml, line);
    addKeepOptions(xml, line);

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

    addScan(addCommand(app, line, Command::Find, "find", "Find files by name and metadata, one path a line"), line);

    CLI::App& report = addCommand(app, line, Command::Report, "report", "Transform the metadata of all files at once");
    report.add_option("--style", line.styleSheet, "The XSL style sheet, applied to <JPEGs> with a <JPEG> a file")
        ->option_text("XSL")
        ->required();
    report.add_option("--output", line.output, "The file to write, in UTF-16; else standard output, in UTF-8")
        ->option_text("FILE");
    addKeepOptions(report, line);
    addFiles(report, line);

    // The parser reports by exceptions of its own, help and version included; they end here.
    try {
        app.parse(argc, argv);
        const bool isFind = line.command == Command::Find;
        if (line.filesFrom.empty() && (isFind ? line.scan.folder.empty() : line.files.empty()))
            throw CLI::RequiredError(isFind ? "FOLDER" : "FILE");
        if (!line.document.empty() && (line.files.size() != 1 || !line.filesFrom.empty()))
            throw CLI::ValidationError("--document", "goes with exactly one FILE");
    } catch (const CLI::ParseError& error) {
        exitStatus = app.exit(error) == kAllDone ? kAllDone : kWrongUsage;
        return std::nullopt;
    }
    return line;
}

} // namespace ovisto
