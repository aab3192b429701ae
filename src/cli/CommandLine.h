#pragma once

#include "collection/FolderScan.h"
#include "reader/JpegXml.h"

#include <optional>
#include <string>
#include <vector>

namespace ovisto {

enum class Command { Show, Xml, Export, Write, Set, Delete, Add, Find, Report };

/// What a command line asks for.
struct CommandLine {
    Command command = Command::Show;
    std::vector<std::string> files; ///< those named on the command line
    std::string filesFrom;          ///< a file with more of them, "-" for standard input; empty for none
    bool zeroSeparated = false;     ///< names, those in it and those found, end with zero bytes, not line ends
    std::string dictionary;         ///< empty for the program's own
    unsigned jobs = 1;
    bool technical = false; ///< show: technical properties too
    KeepOptions keep;       ///< xml, report: what to leave out
    std::string document;   ///< write: the edited document; empty for the file's own
    std::string nodePath;   ///< set, delete, add
    std::string value;      ///< set
    ScanOptions scan;       ///< find
    std::string styleSheet; ///< report
    std::string output;     ///< report: the file to write; empty for standard output
};

/// Exit statuses of the program, unless it was asked to end: it then ends by that signal (130, 143 to a shell).
inline constexpr int kAllDone = 0;
inline constexpr int kSomeFailed = 1;
inline constexpr int kWrongUsage = 2;

/// Reads the command line. Where there is nothing more to do (help, version, wrong usage), the text for it has been
/// written and `exitStatus` is set instead.
std::optional<CommandLine> parseCommandLine(int argc, char** argv, int& exitStatus);

} // namespace ovisto
