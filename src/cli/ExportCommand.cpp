#include "cli/Commands.h"
#include "cli/EachFile.h"
#include "cli/Options.h"
#include "collection/DocumentLoad.h"
#include "collection/XmlExport.h"
#include "common/system/Interruption.h"

namespace ovisto {

namespace {

int runExport(const FileOptions& options)
{
    const std::vector<std::string> files = fileNames(options);
    deferInterruption();
    return runEach(files, options.jobs, [](const std::string& path, FileResult&, ErrorReporter& reporter) {
        exportDocument(loadDocument(path), path, reporter);
    });
}

} // namespace

Command exportCommand()
{
    return command("export", "Write FILE.XML beside each file", addFiles, runExport);
}

} // namespace ovisto
