// SPDX-License-Identifier: MIT

#include "cli/Commands.h"
#include "cli/EachFile.h"
#include "cli/Options.h"
#include "reader/JpegXml.h"

#include <CLI/CLI.hpp>

#include <utility>

namespace ovisto {

namespace {

struct XmlOptions {
    FileOptions files;
    KeepOptions keep;
};

void addXmlOptions(CLI::App& parser, XmlOptions& options)
{
    addFullOption(parser, options.keep);
    addKeepOptions(parser, options.keep);
    addFiles(parser, options.files);
    parser.footer(
        "The documents follow one another, each an element JPEG without an XML declaration. Put between <JPEGs> "
        "and </JPEGs>, they are one document. Without --full, files are read in the basic way: texts through "
        "Windows-1252, and no position.");
}

int runXml(const XmlOptions& options)
{
    const auto work = [&](const std::string& path, FileResult& result, ErrorReporter&) {
        Translation translation = JpegXml().XMLtranslate(path, options.keep);
        result.output = std::move(translation.text);
        if (translation.error)
            throw Error(*translation.error);
    };
    return runEach(options.files, fileNames(options.files), work);
}

} // namespace

Command xmlCommand()
{
    return command("xml", "Print the metadata documents (XML) of files", addXmlOptions, runXml);
}

} // namespace ovisto
