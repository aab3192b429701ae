// SPDX-License-Identifier: MIT

#include "cli/Commands.h"
#include "cli/EachFile.h"
#include "cli/Options.h"
#include "cli/PropertyText.h"
#include "cli/TerminalText.h"
#include "collection/DocumentLoad.h"
#include "collection/PrivateData.h"

#include <CLI/CLI.hpp>

namespace ovisto {

namespace {

struct ShowOptions {
    FileOptions files;
    bool technical = false;
    bool raw = false;
    bool onlyPrivate = false;
    Reading reading = Reading::Full;
};

void addShowOptions(CLI::App& parser, ShowOptions& options)
{
    parser.add_flag("--technical", options.technical, "Show technical properties, too");
    parser.add_flag("--raw", options.raw, "Show only stored values: 1/250 and not 1/250 s");
    parser.add_flag("--private", options.onlyPrivate,
                    "Show instead what tells of people and places, and clean takes away: its kind, size and place");
    addBasicOption(parser, options.reading);
    addFiles(parser, options.files);
    parser.footer("Each line has the name of a property, what its value means, in square brackets what is stored, and "
                  "the data type:\n"
                  "\n"
                  "  Exposure Time: 1/125 s [1/125] (Rational)");
}

/// What clean would take away, one a line, after the name that --keep has for it.
std::string privateText(const std::string& path, const TagDictionary& dictionary)
{
    XmlDocument document = loadDocument(path, {.reading = Reading::Full});
    std::string lines;
    for (const PrivateFinding& finding : privateFindings(document, path, dictionary))
        lines += "  " + std::string(privateKindRow(finding.kind).name) + ": " +
                 oneLine(inEnglish(findingText(finding))) + "\n";
    return lines.empty() ? "  " + inEnglish(Message::TellsNothing) + "\n" : lines;
}

int runShow(const ShowOptions& options)
{
    const std::vector<std::string> files = fileNames(options.files);
    const TagDictionary dictionary = loadDictionary(options.files);
    return runEach(options.files, files, [&](const std::string& path, FileResult& result, ErrorReporter&) {
        const std::string text = options.onlyPrivate
                                     ? privateText(path, dictionary)
                                     : propertyText(loadDocument(path, {.reading = options.reading}), dictionary,
                                                    {.technical = options.technical, .raw = options.raw});
        result.output = oneLine(path) + "\n" + text;
    });
}

} // namespace

Command showCommand()
{
    return command("show", "Print the properties of files as a tree", addShowOptions, runShow);
}

} // namespace ovisto
