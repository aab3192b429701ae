// SPDX-License-Identifier: MIT

#include "cli/Commands.h"
#include "cli/EachFile.h"
#include "cli/Options.h"
#include "reader/JpegXml.h"

#include <utility>

namespace ovisto {

namespace {

struct XmlOptions {
    FileOptions files;
    KeepOptions keep;
};

void addXmlOptions(CLI::App& parser, XmlOptions& options)
{
    addFiles(parser, options.files);
    addKeepOptions(parser, options.keep);
    addFullOption(parser, options.keep);
}

int runXml(const XmlOptions& options)
{
    const auto work = [&](const std::string& path, FileResult& result, ErrorReporter&) {
        Translation translation = JpegXml().XMLtranslate(path, options.keep);
        result.output = std::move(translation.text);
        if (translation.error)
            throw Error(*translation.error);
    };
    return runEach(fileNames(options.files), options.files.jobs, work);
}

} // namespace

Command xmlCommand()
{
    return command("xml", "Write the metadata documents to standard output", addXmlOptions, runXml);
}

} // namespace ovisto
