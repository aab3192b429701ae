#include "cli/Commands.h"

#include "cli/CollectionCommands.h"
#include "cli/CommandOutput.h"
#include "cli/FileLoop.h"
#include "cli/FileNames.h"
#include "cli/PropertyText.h"
#include "cli/TerminalText.h"
#include "collection/BatchAction.h"
#include "collection/DocumentLoad.h"
#include "collection/XmlExport.h"
#include "common/FirstReport.h"
#include "common/system/File.h"
#include "common/system/Interruption.h"
#include "common/system/ProgramFolder.h"
#include "common/xml/XmlLoad.h"
#include "document/NodePath.h"
#include "writer/JpegDocument.h"

#include <algorithm>
#include <cstdio>
#include <functional>
#include <iterator>
#include <memory>
#include <unordered_set>

namespace ovisto {

namespace {

using FileWork = std::function<FileResult(const std::string& path)>;

/// Runs `step` for a file; what it raises becomes the line about the file.
template <class Step> FileResult resultOf(const std::string& path, Step step)
{
    FileResult result;
    FirstReport reporter;
    ErrorTrap trap;
    trap.run([&] { step(result, reporter); });
    if (trap.pending())
        result.errors = errorLine(path, reporter.orElse(trap.error()).description);
    return result;
}

TagDictionary loadDictionary(const CommandLine& line)
{
    return TagDictionary(line.dictionary.empty() ? ProgramFolder().data + "Merovel.xml" : line.dictionary);
}

FileWork showWork(const CommandLine& line)
{
    return [&line, dictionary = std::make_shared<TagDictionary>(loadDictionary(line))](const std::string& path) {
        return resultOf(path, [&](FileResult& result, FirstReport&) {
            const std::string tree = propertyText(loadDocument(path), *dictionary, line.technical);
            result.output = path + "\n" + tree;
        });
    };
}

FileWork xmlWork(const CommandLine& line)
{
    return [&line](const std::string& path) {
        return resultOf(path, [&](FileResult& result, FirstReport&) {
            Translation translation = JpegXml().XMLtranslate(path, line.keep);
            result.output = std::move(translation.text);
            if (translation.error)
                throw Error(*translation.error);
        });
    };
}

FileWork exportWork(const CommandLine& /*line*/)
{
    return [](const std::string& path) {
        return resultOf(
            path, [&](FileResult&, FirstReport& reporter) { exportDocument(loadDocument(path), path, reporter); });
    };
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

/// Loads an edited document, which must be of the file as it is now: the image data is taken from there.
XmlDocument loadEdited(const std::string& documentPath, const std::string& path)
{
    const std::vector<std::string> parts = imageParts(loadDocument(path));
    XmlDocument document;
    if (const auto error = document.loadFile(documentPath, Validation::Off, WhiteSpace::Preserve))
        throw Error{kOpenFailed, documentPath + ": " + parseErrorText(*error)};
    if (document.documentElement().name() != "JPEG")
        throw Error{kOpenFailed, documentPath + ": The root element is not JPEG"};
    if (imageParts(document) != parts)
        throw Error{kInvalidCall, documentPath + " describes another image, or this file before it was changed"};
    return document;
}

FileWork writeWork(const CommandLine& line)
{
    return [&line](const std::string& path) {
        return resultOf(path, [&](FileResult&, FirstReport& reporter) {
            XmlDocument document = line.document.empty() ? loadDocument(path) : loadEdited(line.document, path);
            JpegDocument(reporter).WriteJpeg(document, path);
        });
    };
}

FileWork workFor(const CommandLine& line)
{
    switch (line.command) {
    case Command::Show:
        return showWork(line);
    case Command::Xml:
        return xmlWork(line);
    case Command::Export:
        return exportWork(line);
    case Command::Write:
        return writeWork(line);
    default:
        return {};
    }
}

bool changesNodes(Command command)
{
    return command == Command::Set || command == Command::Delete || command == Command::Add;
}

bool rewritesFiles(Command command)
{
    return changesNodes(command) || command == Command::Write;
}

bool writesFiles(Command command)
{
    return rewritesFiles(command) || command == Command::Export || command == Command::Report;
}

/// Does `work` for each of the files, but not for one that would destroy another one while it is written.
int runEach(const CommandLine& line, const std::vector<std::string>& files, const FileWork& work)
{
    std::unordered_set<std::size_t> overwriting;
    if (line.command == Command::Write) {
        std::vector<std::string> realPaths;
        std::ranges::transform(files, std::back_inserter(realPaths), realPath);
        overwriting = overwritingOthers(realPaths);
    }
    CommandOutput output;
    forEachFile(
        files, line.jobs,
        [&](std::size_t index) {
            if (!overwriting.contains(index))
                return work(files[index]);
            return resultOf(files[index], [](FileResult&, FirstReport&) { throw Error(overwritingError()); });
        },
        [&](const FileResult& result) { output.write(result); }, output.progress());
    return output.finish();
}

int runOnFiles(const CommandLine& line)
{
    std::vector<std::string> files = fileNames(line);
    if (writesFiles(line.command))
        deferInterruption();
    if (rewritesFiles(line.command))
        files = withoutRepeats(std::move(files));
    if (changesNodes(line.command))
        return runChange(line, files, loadDictionary(line));
    if (line.command == Command::Report)
        return runReport(line, files);
    return runEach(line, files, workFor(line));
}

} // namespace

int runCommand(const CommandLine& line)
{
    if (line.command == Command::Find)
        return runFind(line);
    int status = kSomeFailed;
    ErrorTrap trap;
    trap.run([&] { status = runOnFiles(line); });
    if (trap.pending())
        std::fputs(errorLine("", trap.take().description).c_str(), stderr);
    return status;
}

} // namespace ovisto
