// SPDX-License-Identifier: MIT

#include "cli/Options.h"

#include "cli/HelpText.h"
#include "cli/TerminalText.h"
#include "common/Error.h"
#include "common/system/File.h"
#include "common/system/ProgramFolder.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdio>
#include <iostream>
#include <sstream>
#include <string_view>
#include <thread>
#include <unordered_set>

namespace ovisto {

namespace {

void readNames(std::vector<std::string>& files, std::istream& input, char separator)
{
    bool isFirst = true;
    for (std::string name; std::getline(input, name, separator);) {
        // A text file may have these; with zero bytes, every byte before one is a part of the name.
        if (separator == '\n' && isFirst && name.starts_with(kByteOrderMark))
            name.erase(0, kByteOrderMark.size());
        if (separator == '\n' && name.ends_with('\r'))
            name.pop_back();
        isFirst = false;
        if (!name.empty())
            files.push_back(name);
    }
}

/// What is wrong with the value of --failed-to; empty if nothing is.
std::string failedToObjection(const std::string& name)
{
    return name == "-" ? "The list cannot go to standard output, where the results are; ./- is a file of that name"
                       : nameObjection(name);
}

/// What is wrong with the value of --jobs; empty if nothing is.
std::string jobsObjection(const std::string& text)
{
    return CLI::Range(1, 1024)(text).empty() ? std::string() : text + " is not a number from 1 to 1024";
}

} // namespace

std::string nameObjection(const std::string& name)
{
    return name.empty() ? "A name is empty" : "";
}

void addFiles(CLI::App& parser, FileOptions& options)
{
    parser.add_option("FILE", options.files, "JPEG files; none needed with --files-from")
        ->option_text(" ")
        ->check(nameObjection);
    addFileList(parser, options);
    parser.final_callback([&options] { requireFiles(options); });
}

void addFileList(CLI::App& parser, FileOptions& options)
{
    parser
        .add_option("--files-from", options.filesFrom,
                    "Read more file names from FILE, one a line; - means standard input")
        ->option_text("FILE")
        ->check(nameObjection)
        ->group(kCommonOptions);
    parser
        .add_option("--failed-to", options.failedTo,
                    "At the end, write to FILE the names of the files that were not done: those that failed and, after "
                    "an interruption, those not reached. It is empty if all were done")
        ->option_text("FILE")
        ->check(failedToObjection)
        ->group(kCommonOptions);
    parser
        .add_flag("-0", options.zeroSeparated,
                  "Names in these files, and those that find prints, end with NUL bytes instead of line ends")
        ->group(kCommonOptions);
    options.jobs = std::max(1U, std::thread::hardware_concurrency());
    parser.add_option("--jobs", options.jobs, "Work on N files at the same time (default: one for each core)")
        ->option_text("N")
        ->check(jobsObjection)
        ->group(kCommonOptions);
    parser
        .add_option("--dictionary", options.dictionary,
                    "Take labels, data types and meanings from this tag dictionary, not the program's own")
        ->option_text("FILE")
        ->group(kCommonOptions);
}

void requireFiles(const FileOptions& options)
{
    if (options.files.empty() && options.filesFrom.empty())
        throw CLI::RequiredError("FILE");
}

void addWritingOptions(CLI::App& parser, WritingOptions& options)
{
    parser.add_flag(
        "--rebuild", options.rebuild,
        "Write the Exif segment anew instead of changing it where it stands. The command check says what that "
        "would lose; the old file is kept as FILE.original");
    parser.add_flag("--force", options.force,
                    "If another program changes a file in the meantime, change it as it is now instead of refusing");
    addBasicOption(parser, options.asked);
    parser.add_flag("--verbose", options.verbose, "Say what was changed in each file, on standard error");
}

std::string savedLines(const WritingOptions& options, const std::string& path, const SaveReceipt& receipt)
{
    std::string lines;
    if (!receipt.losses.empty())
        lines += errorLine(path, "Lost by --rebuild: " + inEnglish(lossSummary(receipt)));
    else if (options.verbose)
        lines += errorLine(path, summary(receipt));
    for (const Phrase& note : receipt.notes)
        lines += errorLine(path, note);
    return lines;
}

void addKeepOptions(CLI::App& parser, KeepOptions& keep)
{
    parser.add_flag("!--no-maker-notes", keep.pCodifyMakerNote, "Leave out maker notes");
    parser.add_flag("!--no-thumbnails", keep.pCodifyThumb, "Leave out thumbnails");
    parser.add_flag("!--no-nonstandard-exif", keep.pCodifyExif1,
                    "Leave out APP1 segments that are not Exif, such as XMP");
}

void addBasicOption(CLI::App& parser, Reading& reading)
{
    reading = Reading::Full;
    parser.add_flag_callback(
        "--basic", [&reading] { reading = Reading::Basic; },
        "Read in the basic way, as xml does: texts through Windows-1252, and no position");
}

void addFullOption(CLI::App& parser, KeepOptions& keep)
{
    parser.add_flag_callback(
        "--full", [&keep] { keep.reading = Reading::Full; },
        "Read everything: texts in any language, the position, all bytes and numbers exactly");
}

std::vector<std::string> fileNames(const FileOptions& options)
{
    std::vector<std::string> files = options.files;
    const char separator = options.zeroSeparated ? '\0' : '\n';
    if (options.filesFrom == "-") {
        readNames(files, std::cin, separator);
        if (std::ferror(stdin) != 0) // or the names that could not be read would count as done
            throw Error{kDeviceError, "Standard input cannot be read"};
    } else if (!options.filesFrom.empty()) {
        ErrorTrap trap;
        std::istringstream input;
        trap.run([&] { input.str(readTextFile(options.filesFrom, FileKind::RegularOrPipe)); });
        if (trap.pending())
            throw Error{trap.error().number, {Message::InContext, options.filesFrom, trap.error().description}};
        readNames(files, input, separator);
    }
    return files;
}

std::vector<std::string> withoutRepeats(std::vector<std::string> files)
{
    std::unordered_set<std::string> seen;
    std::erase_if(files, [&](const std::string& file) { return !seen.insert(realPath(file)).second; });
    return files;
}

TagDictionary loadDictionary(const FileOptions& options)
{
    return TagDictionary(options.dictionary.empty() ? ProgramFolder().data + "Merovel.xml" : options.dictionary);
}

} // namespace ovisto
