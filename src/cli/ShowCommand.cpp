#include "cli/Commands.h"
#include "cli/EachFile.h"
#include "cli/Options.h"
#include "cli/PropertyText.h"
#include "cli/TerminalText.h"
#include "collection/DocumentLoad.h"

#include <CLI/CLI.hpp>

namespace ovisto {

namespace {

struct ShowOptions {
    FileOptions files;
    bool technical = false;
    Reading reading = Reading::Full;
};

void addShowOptions(CLI::App& parser, ShowOptions& options)
{
    addFiles(parser, options.files);
    parser.add_flag("--technical", options.technical, "Show technical properties too");
    addBasicOption(parser, options.reading);
}

int runShow(const ShowOptions& options)
{
    const std::vector<std::string> files = fileNames(options.files);
    const TagDictionary dictionary = loadDictionary(options.files);
    return runEach(files, options.files.jobs, [&](const std::string& path, FileResult& result, ErrorReporter&) {
        const XmlDocument document = loadDocument(path, {.reading = options.reading});
        result.output = oneLine(path) + "\n" + propertyText(document, dictionary, options.technical);
    });
}

} // namespace

Command showCommand()
{
    return command("show", "Show the properties as a tree", addShowOptions, runShow);
}

} // namespace ovisto
