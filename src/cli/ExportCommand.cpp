// SPDX-License-Identifier: MIT

#include "cli/Commands.h"
#include "cli/EachFile.h"
#include "cli/Options.h"
#include "collection/DocumentLoad.h"
#include "collection/XmlExport.h"
#include "common/system/Interruption.h"

namespace ovisto {

namespace {

struct ExportOptions {
    FileOptions files;
    Reading reading = Reading::Full;
};

void addExportOptions(CLI::App& parser, ExportOptions& options)
{
    addBasicOption(parser, options.reading);
    addFiles(parser, options.files);
}

int runExport(const ExportOptions& options)
{
    const std::vector<std::string> files = fileNames(options.files);
    deferInterruption();
    return runEach(options.files, files, [&](const std::string& path, FileResult&, ErrorReporter& reporter) {
        exportDocument(loadDocument(path, {.reading = options.reading}), path, reporter);
    });
}

} // namespace

Command exportCommand()
{
    return command("export", "Write the metadata document of each file beside it, as FILE.XML", addExportOptions,
                   runExport);
}

} // namespace ovisto
