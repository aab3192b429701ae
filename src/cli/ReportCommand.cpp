// SPDX-License-Identifier: MIT

#include "cli/CommandOutput.h"
#include "cli/Commands.h"
#include "cli/Options.h"
#include "collection/Report.h"
#include "common/system/File.h"
#include "common/system/Interruption.h"
#include "common/system/NewTextFile.h"
#include "common/system/TemporaryFile.h"
#include "common/xml/XmlLoad.h"

#include <CLI/CLI.hpp>

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace ovisto {

namespace {

struct ReportCommandOptions {
    std::string styleSheet;
    std::vector<std::string> readable; ///< folders
    std::string output;                ///< the file to write; empty for standard output
    std::string encoding = "utf-8";
    KeepOptions keep;
    FileOptions files;
};

void addReportOptions(CLI::App& parser, ReportCommandOptions& options)
{
    parser.add_option("--style", options.styleSheet, "The XSL style sheet, applied to <JPEGs> with a <JPEG> a file")
        ->option_text("XSL")
        ->required();
    parser
        .add_option("--allow-read", options.readable,
                    "A folder that the style sheet may read files from, besides its own; may be given several times")
        ->option_text("DIR")
        ->allow_extra_args(false)
        ->check(CLI::ExistingDirectory);
    parser.add_option("--output", options.output, "The file to write, instead of standard output")->option_text("FILE");
    parser.add_option("--encoding", options.encoding, "utf-8 (the default) or utf-16")
        ->option_text("ENCODING")
        ->check(CLI::IsMember({"utf-8", "utf-16"}));
    addKeepOptions(parser, options.keep);
    addBasicOption(parser, options.keep.reading);
    addFiles(parser, options.files);
}

/// Whether a JPEG file is there: the name of the output was forgotten, and the first of the files taken for it.
bool isPhotograph(const std::string& path)
{
    std::array<std::uint8_t, 2> start{};
    ErrorTrap trap;
    if (!path.empty())
        trap.run([&] { InputFile(path).readAt(0, start); });
    return start == std::array<std::uint8_t, 2>{0xFF, 0xD8};
}

/// The report, unless it was interrupted: a report on some of the files is none.
Transformation transformed(const ReportCommandOptions& options, XmlDocument style,
                           const std::vector<std::string>& files, CommandOutput& output)
{
    XmlDocument document;
    const TagDictionary dictionary = loadDictionary(options.files);
    TemporaryFile combined;
    for (const FileFailure& failure : combineDocuments(files, options.keep, combined.file(), output.progress()))
        ErrorReport(output, failure.path, failure.error);
    if (interrupted())
        return {};
    XMLLoad(document, combined.path());
    return transformDocuments(document, std::move(style),
                              options.encoding == "utf-16" ? TextEncoding::Utf16 : TextEncoding::Utf8,
                              {.dictionary = &dictionary});
}

/// Makes the report and writes it to `file`, to standard output without one.
void makeReport(const ReportCommandOptions& options, XmlDocument style, const std::vector<std::string>& files,
                std::optional<NewTextFile>& file, CommandOutput& output)
{
    Transformation report;
    if (!attempt(output, "", [&] { report = transformed(options, std::move(style), files, output); }) || interrupted())
        return;
    if (report.error)
        ErrorReport(output, options.styleSheet, *report.error);
    else if (file)
        attempt(output, options.output, [&] { file->write(report.bytes); });
    else
        output.write({.output = report.bytes, .errors = {}});
}

/// Opens the file for the report, if it is to be in one.
void openOutput(std::optional<NewTextFile>& file, const std::string& path)
{
    if (isPhotograph(path))
        throw Error{kInvalidCall, "A photograph is not replaced by a report"};
    if (!path.empty())
        file.emplace(path);
}

int runReport(const ReportCommandOptions& options)
{
    CommandOutput output;
    XmlDocument style;
    std::optional<NewTextFile> file;
    const std::vector<std::string> files = fileNames(options.files);
    // A style sheet that never comes out of its pipe is not waited for once more, so that is before anything is
    // written.
    const bool isReady = attempt(
        output, "", [&] { loadStyleSheet(style, options.styleSheet, FileKind::RegularOrPipe, options.readable); });
    deferInterruption();
    if (isReady && attempt(output, options.output, [&] { openOutput(file, options.output); }))
        makeReport(options, std::move(style), files, file, output);
    return output.finish();
}

} // namespace

Command reportCommand()
{
    return command("report", "Transform the metadata of all files at once", addReportOptions, runReport);
}

} // namespace ovisto
