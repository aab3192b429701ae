// SPDX-License-Identifier: MIT

#include "cli/Commands.h"
#include "cli/EachFile.h"
#include "cli/Options.h"
#include "cli/TerminalText.h"
#include "collection/DocumentLoad.h"
#include "collection/DocumentSaving.h"
#include "common/system/Interruption.h"
#include "common/xml/XmlLoad.h"
#include "document/MetadataDocument.h"
#include "document/NodePath.h"

#include <CLI/CLI.hpp>

#include <utility>

namespace ovisto {

namespace {

struct WriteOptions {
    FileOptions files;
    WritingOptions writing;
    std::string document; ///< the edited one; empty for the file's own
};

void addWriteOptions(CLI::App& parser, WriteOptions& options)
{
    parser
        .add_option("--document", options.document,
                    "Save this document, an edited one, in the only FILE (default: each file from its own document)")
        ->option_text("XML");
    addWritingOptions(parser, options.writing);
    addFiles(parser, options.files);
    parser.final_callback([&options] {
        requireFiles(options.files);
        const bool isOneFile = options.files.files.size() == 1 && options.files.filesFrom.empty();
        if (!options.document.empty() && !isOneFile)
            throw CLI::ValidationError("--document", "goes with exactly one FILE");
    });
}

/// What a document says of the image: where its data is, and which tables and headers it is decoded with.
std::vector<std::string> imageParts(const XmlDocument& document)
{
    std::vector<std::string> parts;
    for (const ConstXmlNode& node : document.documentElement().childElements()) {
        const std::string id = AttributeGet(node, "id");
        const bool isTable = node.name() == "APP1" && id < "FFE0"; // frames, tables, restart interval
        if (isTable || node.name() == "SOS")
            parts.push_back(node.name() + id);
        else if (node.name() == "IMG")
            parts.push_back(AttributeGet(node, "offset") + " " + AttributeGet(node, "length"));
    }
    return parts;
}

/// Loads an edited document.
XmlDocument loadEdited(const std::string& documentPath)
{
    XmlDocument document;
    if (const auto error = document.loadFile(documentPath, Validation::Off, WhiteSpace::Preserve))
        throw Error{kOpenFailed, {Message::InContext, documentPath, parseErrorText(*error)}};
    if (document.documentElement().name() != "JPEG")
        throw Error{kOpenFailed, documentPath + ": The root element is not JPEG"};
    return document;
}

/// Writes an edited document, which must be of the file as it is when the command opens it: the image data is taken
/// from there.
SaveReceipt writeEdited(const WriteOptions& options, const std::string& path, ErrorReporter& reporter,
                        const SparedFile& isSpared)
{
    const FileReading reading = readFile(path);
    XmlDocument document = loadEdited(options.document);
    if (options.writing.rebuild && readingOf(document.node()) == Reading::Full)
        throw Error{kInvalidCall, {Message::InContext, options.document, Message::FullNotRebuilt}};
    const bool isOfFile = imageParts(document) == imageParts(documentOf(reading.text));
    const SavingWay way{.writing = options.writing.way(), .isSpared = isSpared};
    if (!isOfFile && !options.writing.force)
        throw Error{kInvalidCall, options.document + " describes another image, or this file before it was changed"};
    if (!isOfFile)
        return saveOver(document, path, way, reporter);
    if (!options.writing.force)
        return saveDocument(document, reading.identity, path, way, reporter);
    bool isFirst = true;
    return savedAtLast(reporter, [&](ErrorReporter& reports) {
        return std::exchange(isFirst, false) ? saveDocument(document, reading.identity, path, way, reports)
                                             : saveOver(document, path, way, reports);
    });
}

/// Writes a file from its own document.
SaveReceipt writeAnew(const WriteOptions& options, const std::string& path, ErrorReporter& reporter,
                      const SparedFile& isSpared)
{
    const auto write = [&](ErrorReporter& reports) {
        const FileReading reading = readFile(path, options.writing.reading());
        XmlDocument document = documentOf(reading.text);
        return saveDocument(document, reading.identity, path, {options.writing.way(), isSpared}, reports);
    };
    return options.writing.force ? savedAtLast(reporter, write) : write(reporter);
}

int runWrite(const WriteOptions& options)
{
    std::vector<std::string> files = fileNames(options.files);
    deferInterruption();
    files = withoutRepeats(std::move(files));
    const SparedFile isSpared = sparing(files);
    return runEach(options.files, files, [&](const std::string& path, FileResult& result, ErrorReporter& reporter) {
        const SaveReceipt receipt = options.document.empty() ? writeAnew(options, path, reporter, isSpared)
                                                             : writeEdited(options, path, reporter, isSpared);
        result.notes = savedLines(options.writing, path, receipt);
        if (receipt.notOnDisk)
            result.errors = errorLine(path, receipt.notOnDisk->description);
    });
}

} // namespace

Command writeCommand()
{
    return command("write", "Save files from their metadata documents", addWriteOptions, runWrite);
}

} // namespace ovisto
