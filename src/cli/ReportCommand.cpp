// SPDX-License-Identifier: MIT

#include "cli/CommandOutput.h"
#include "cli/Commands.h"
#include "cli/FailedList.h"
#include "cli/Options.h"
#include "cli/TerminalText.h"
#include "collection/Report.h"
#include "common/system/File.h"
#include "common/system/FileListing.h"
#include "common/system/Interruption.h"
#include "common/system/NewTextFile.h"
#include "common/system/ProgramFolder.h"
#include "common/system/TemporaryFile.h"
#include "common/xml/XmlLoad.h"

#include <CLI/CLI.hpp>

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ovisto {

namespace {

constexpr std::string_view kStyleSheetExtension = ".xsl";

struct ReportCommandOptions {
    std::string styleSheet;
    std::vector<std::string> readable; ///< folders
    std::string output;                ///< the file to write; empty for standard output
    std::string encoding = "utf-8";
    KeepOptions keep;
    FileOptions files;
};

/// Where the style sheets are that come with the program.
std::string styleSheetFolder()
{
    return ProgramFolder().data + "reports/";
}

std::string joined(const std::vector<std::string>& names)
{
    std::string text;
    for (const std::string& name : names)
        text += (text.empty() ? "" : ", ") + name;
    return text;
}

void addReportOptions(CLI::App& parser, ReportCommandOptions& options)
{
    parser
        .add_option(
            "--style", options.styleSheet,
            "The style sheet: a file, or the name of one that comes with the program. It is applied to one document, "
            "<JPEGs>, with a <JPEG> for each file")
        ->option_text("XSL")
        ->required();
    parser
        .add_option(
            "--allow-read", options.readable,
            "Let the style sheet read the files below this folder, not only those below its own; may be given several "
            "times")
        ->option_text("DIR")
        ->allow_extra_args(false)
        ->check(CLI::ExistingDirectory);
    parser.add_option("--output", options.output, "Write the report to FILE, not to standard output")
        ->option_text("FILE");
    parser
        .add_option("--encoding", options.encoding, "Write the report in this encoding: utf-8 (the default) or utf-16")
        ->option_text("ENCODING")
        ->check(CLI::IsMember({"utf-8", "utf-16"}));
    addKeepOptions(parser, options.keep);
    addBasicOption(parser, options.keep.reading);
    addFiles(parser, options.files);
    parser.footer([] {
        return "Style sheets that come with the program: " + joined(styleSheetNames()) +
               ". A name without folder and extension means one of these, and a file only if none has it; ./table is "
               "always a file.";
    });
}

/// The file that --style means. Raises an error for a name that neither a style sheet of the program has nor a file.
std::string styleSheetPath(const std::string& name)
{
    const bool isPlain = name.find_first_of("/.") == std::string::npos;
    std::string shipped = styleSheetFolder() + name + std::string(kStyleSheetExtension);
    if (isPlain && fileExists(shipped))
        return shipped;
    if (isPlain && !fileExists(name))
        throw Error{kFileNotFound, name + ": There is neither such a file nor such a style sheet in the program: " +
                                       joined(styleSheetNames())};
    return name;
}

/// The report, unless it was interrupted: a report on some of the files is none. The files that it is without are added
/// to `undone`.
Transformation transformed(const ReportCommandOptions& options, XmlDocument style,
                           const std::vector<std::string>& files, CommandOutput& output,
                           std::vector<std::string>& undone)
{
    XmlDocument document;
    const TagDictionary dictionary = loadDictionary(options.files);
    TemporaryFile combined;
    for (const FileFailure& failure : combineDocuments(files, options.keep, combined.file(), output.progress())) {
        ErrorReport(output, failure.path, failure.error);
        undone.push_back(failure.path);
    }
    if (interrupted())
        return {};
    XMLLoad(document, combined.path());
    return transformDocuments(document, std::move(style),
                              options.encoding == "utf-16" ? TextEncoding::Utf16 : TextEncoding::Utf8,
                              {.dictionary = &dictionary});
}

/// Makes the report and writes it to `file`, to standard output without one. Returns the files that it is without.
std::vector<std::string> makeReport(const ReportCommandOptions& options, XmlDocument style,
                                    const std::vector<std::string>& files, std::optional<NewTextFile>& file,
                                    CommandOutput& output)
{
    std::vector<std::string> undone;
    Transformation report;
    const bool isMade =
        attempt(output, "", [&] { report = transformed(options, std::move(style), files, output, undone); });
    const bool isInterrupted = interrupted();
    if (isInterrupted)
        output.write({.notes = errorLine("", "Interrupted before the report was complete, so there is none")});
    if (!isMade || isInterrupted)
        return files;
    if (report.error) {
        ErrorReport(output, options.styleSheet, *report.error);
        return files;
    }
    if (!file)
        output.write({.output = report.bytes, .errors = {}});
    else if (!attempt(output, options.output, [&] { file->write(report.bytes); }))
        return files;
    return undone;
}

/// Opens the file for the report, if it is to be in one.
void openOutput(std::optional<NewTextFile>& file, const std::string& path)
{
    if (path.empty())
        return;
    refuseTarget(path, "A photograph is not replaced by a report");
    file.emplace(path);
}

int runReport(const ReportCommandOptions& options)
{
    CommandOutput output;
    std::string stylePath;
    if (!attempt(output, "", [&] { stylePath = styleSheetPath(options.styleSheet); })) {
        output.finish();
        return kWrongUsage;
    }
    XmlDocument style;
    const std::vector<std::string> files = fileNames(options.files);
    // A style sheet that never comes out of its pipe is not waited for once more, so that is before anything is
    // written.
    const bool isReady =
        attempt(output, "", [&] { loadStyleSheet(style, stylePath, FileKind::RegularOrPipe, options.readable); });
    FailedList list(options.files);
    list.checkNames(files);
    deferInterruption();
    std::optional<NewTextFile> file;
    std::vector<std::string> undone = files;
    if (isReady && attempt(output, options.output, [&] { openOutput(file, options.output); }))
        undone = makeReport(options, std::move(style), files, file, output);
    return list.finish(output, undone, files);
}

} // namespace

std::vector<std::string> styleSheetNames()
{
    std::vector<std::string> names;
    ErrorTrap trap; // a copy of the program without its data has none
    trap.run([&] { names = listFolder(styleSheetFolder()).files; });
    std::erase_if(names, [](const std::string& name) { return !name.ends_with(kStyleSheetExtension); });
    for (std::string& name : names)
        name.resize(name.size() - kStyleSheetExtension.size());
    return names;
}

Command reportCommand()
{
    return command("report", "Make one report on all files with a style sheet (XSLT)", addReportOptions, runReport);
}

} // namespace ovisto
