#include "cli/Commands.h"

#include "cli/FileLoop.h"
#include "cli/FileNames.h"
#include "cli/PropertyText.h"
#include "cli/TerminalProgress.h"
#include "cli/TerminalReporter.h"
#include "collection/MetadataDocument.h"
#include "collection/NodeChange.h"
#include "collection/XmlExport.h"
#include "common/NodePath.h"
#include "common/ProgramFolder.h"
#include "writer/JpegDocument.h"

#include <cstdio>
#include <functional>
#include <memory>

namespace ovisto {

namespace {

using FileWork = std::function<FileResult(const std::string& path)>;

/// Runs `step` for a file; what it raises becomes the line about the file.
template<class Step> FileResult resultOf(const std::string& path, Step step)
{
    FileResult result;
    TerminalReporter reporter;
    ErrorTrap trap;
    trap.run([&] { step(result, reporter); });
    if (trap.pending())
        result.errors = reporter.line(path, trap.take());
    return result;
}

TagDictionary loadDictionary(const CommandLine& line)
{
    return TagDictionary(line.dictionary.empty() ? ProgramFolder().data + "Merovel.xml" : line.dictionary);
}

FileWork showWork(const CommandLine& line)
{
    return [&line, dictionary = std::make_shared<TagDictionary>(loadDictionary(line))](const std::string& path) {
        return resultOf(path, [&](FileResult& result, TerminalReporter&) {
            const std::string tree = propertyText(loadDocument(path), *dictionary, line.technical);
            result.output = path + "\n" + tree;
        });
    };
}

FileWork xmlWork(const CommandLine& line)
{
    return [&line](const std::string& path) {
        return resultOf(path, [&](FileResult& result, TerminalReporter&) {
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
        return resultOf(path, [&](FileResult&, TerminalReporter& reporter) {
            const XmlDocument document = loadDocument(path);
            ErrorTrap trap;
            trap.run([&] { exportDocument(document, path); });
            if (trap.pending())
                ErrorReport(reporter, "Save XML File " + exportPath(path), trap.error());
            trap.raise();
        });
    };
}

/// An edited document must belong to the file as it is now, or the image data would be taken from the wrong place.
void checkSameImage(const XmlDocument& edited, const std::string& path)
{
    const XmlDocument own = loadDocument(path);
    for (const char* attribute : {"offset", "length"}) {
        if (AttributeGet(edited.selectSingleNode("/JPEG/IMG"), attribute) !=
            AttributeGet(own.selectSingleNode("/JPEG/IMG"), attribute))
            throw Error{kInvalidCall, "The document is of another file, or of this one before it was changed"};
    }
}

XmlDocument loadEdited(const std::string& documentPath, const std::string& path)
{
    ErrorTrap trap;
    XmlDocument document;
    trap.run([&] { document = documentOf(readTextFile(documentPath)); });
    if (trap.pending()) {
        const Error error = trap.take();
        throw Error{error.number, documentPath + ": " + error.description};
    }
    checkSameImage(document, path);
    return document;
}

FileWork writeWork(const CommandLine& line)
{
    return [&line](const std::string& path) {
        return resultOf(path, [&](FileResult&, TerminalReporter& reporter) {
            const XmlDocument document = line.document.empty() ? loadDocument(path) : loadEdited(line.document, path);
            JpegDocument(reporter).WriteJpeg(document, path);
        });
    };
}

FileWork changeWork(const CommandLine& line)
{
    const auto dictionary = std::make_shared<TagDictionary>(loadDictionary(line));
    NodeChange change{.action = NodeAction::Set, .entry = {}, .value = line.value};
    if (line.command == Command::Delete)
        change.action = NodeAction::Delete;
    else if (line.command == Command::Add)
        change.action = NodeAction::Add;

    ErrorTrap trap;
    trap.run([&] { change.entry = dictionary->entry(line.nodePath); });
    const std::string reason = !change.entry.isElement()   ? "The tag dictionary has no node " + line.nodePath
                               : objection(change).empty() ? std::string()
                                                           : line.nodePath + ": " + objection(change);
    return [change, reason, dictionary](const std::string& path) {
        return resultOf(path, [&](FileResult&, TerminalReporter& reporter) {
            if (!reason.empty())
                throw Error{kInvalidCall, reason};
            changeFile(path, change, reporter);
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
    case Command::Set:
    case Command::Delete:
    case Command::Add:
        return changeWork(line);
    }
    return {};
}

bool changesFiles(Command command)
{
    return command != Command::Show && command != Command::Xml;
}

} // namespace

int runCommand(const CommandLine& line)
{
    std::vector<std::string> files;
    FileWork work;
    ErrorTrap trap;
    trap.run([&] {
        files = fileNames(line);
        if (changesFiles(line.command))
            files = withoutRepeats(std::move(files));
        work = workFor(line);
    });
    if (trap.pending()) {
        std::fputs(errorLine("", trap.take().description).c_str(), stderr);
        return kSomeFailed;
    }

    int status = kAllDone;
    TerminalProgress progress;
    const auto finish = [&](const FileResult& result) {
        if (!result.errors.empty())
            status = kSomeFailed;
        if (result.output.empty() && result.errors.empty())
            return;
        progress.clear();
        std::fwrite(result.output.data(), 1, result.output.size(), stdout);
        if (!result.errors.empty()) {
            std::fflush(stdout);
            std::fputs(result.errors.c_str(), stderr);
        }
    };
    forEachFile(files, line.jobs, work, finish, progress);
    if (std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
        std::fputs(errorLine("", "Standard output cannot be written").c_str(), stderr);
        return kSomeFailed;
    }
    return status;
}

} // namespace ovisto
