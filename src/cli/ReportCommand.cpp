#include "cli/CommandOutput.h"
#include "cli/Commands.h"
#include "cli/Options.h"
#include "collection/Report.h"
#include "common/system/File.h"
#include "common/system/Interruption.h"
#include "common/system/TemporaryFile.h"
#include "common/xml/XmlLoad.h"
#include "common/xml/XmlTransform.h"

#include <CLI/CLI.hpp>

#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace ovisto {

namespace {

struct ReportCommandOptions {
    std::string styleSheet;
    std::vector<std::string> readable; ///< folders
    std::string output;                ///< the file to write; empty for standard output
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
    parser.add_option("--output", options.output, "The file to write, in UTF-16; else standard output, in UTF-8")
        ->option_text("FILE");
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
Transformation transformed(const ReportCommandOptions& options, const std::vector<std::string>& files,
                           CommandOutput& output)
{
    XmlDocument style;
    XmlDocument document;
    // Nothing is written before: a style sheet that never comes out of its pipe is not waited for once more.
    loadStyleSheet(style, options.styleSheet, FileKind::RegularOrPipe, options.readable);
    deferInterruption();
    TemporaryFile combined;
    for (const FileFailure& failure : combineDocuments(files, options.keep, combined.file(), output.progress()))
        ErrorReport(output, failure.path, failure.error);
    if (interrupted())
        return {};
    XMLLoad(document, combined.path());
    return transformNode(document, std::move(style), options.output.empty() ? TextEncoding::Utf8 : TextEncoding::Utf16);
}

void writeReport(const Transformation& report, const ReportCommandOptions& options, CommandOutput& output)
{
    if (report.error)
        ErrorReport(output, options.styleSheet, *report.error);
    else if (options.output.empty())
        output.write({.output = report.bytes, .errors = {}});
    else
        attempt(output, options.output, [&] { writeTextFile(options.output, report.bytes); });
}

int runReport(const ReportCommandOptions& options)
{
    const std::vector<std::string> files = fileNames(options.files);
    CommandOutput output;
    Transformation report;
    if (isPhotograph(options.output))
        ErrorReport(output, options.output, {kInvalidCall, "A photograph is not replaced by a report"});
    else if (attempt(output, "", [&] { report = transformed(options, files, output); }) && !interrupted())
        writeReport(report, options, output);
    return output.finish();
}

} // namespace

Command reportCommand()
{
    return command("report", "Transform the metadata of all files at once", addReportOptions, runReport);
}

} // namespace ovisto
