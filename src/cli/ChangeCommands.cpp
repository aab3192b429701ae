// SPDX-License-Identifier: MIT

#include "cli/BatchRun.h"
#include "cli/CommandOutput.h"
#include "cli/Commands.h"
#include "cli/FailedList.h"
#include "cli/Options.h"
#include "common/system/Interruption.h"
#include "common/text/CodePage.h"
#include "document/NodePath.h"

#include <CLI/CLI.hpp>

#include <utility>

namespace ovisto {

namespace {

/// What set, delete and add have in common; each declares what it takes.
struct ChangeOptions {
    FileOptions files;
    WritingOptions writing;
    NodeAction action;
    std::string nodePath;
    std::string value;
};

void addNodePath(CLI::App& parser, ChangeOptions& options)
{
    parser
        .add_option("NODEPATH", options.nodePath,
                    "The path of the node, as in \"/JPEG/Exif[@id='FFE1']/IFD[@id='9C9B']\", the title; the command "
                    "xml --full shows how the elements are nested")
        ->option_text(" ")
        ->required();
}

void addSetOptions(CLI::App& parser, ChangeOptions& options)
{
    options.action = NodeAction::Set;
    addNodePath(parser, options);
    parser.add_option("VALUE", options.value, "The new value, as show --raw prints it")->option_text(" ")->required();
    addWritingOptions(parser, options.writing);
    addFiles(parser, options.files);
    parser.footer("A file that already is as it should be is not written.");
}

template <NodeAction kAction> void addNodeOptions(CLI::App& parser, ChangeOptions& options)
{
    options.action = kAction;
    addNodePath(parser, options);
    addWritingOptions(parser, options.writing);
    addFiles(parser, options.files);
    parser.footer("A file that already is as it should be is not written.");
}

/// Why no file has the node, whatever the file; empty when some may.
Phrase objectionToPath(PathMeaning meaning)
{
    if (meaning == PathMeaning::NotAPath)
        return "Not a node path, which is written as in /JPEG/Exif[@id='FFE1']/IFD[@id='9C9B']";
    return meaning == PathMeaning::NoSuchNode ? Phrase("No photograph has a node with this path") : Phrase();
}

/// The change, or an error that says why it cannot be made to any file.
NodeChange changeOf(const ChangeOptions& options, const TagDictionary& dictionary)
{
    const PathMeaning meaning = pathMeaning(options.nodePath);
    Phrase reason = objectionToPath(meaning);
    NodeChange change{.action = options.action, .value = decodedText(options.value), .path = options.nodePath};
    if (reason.isEmpty()) {
        change.entry = dictionary.entry(options.nodePath);
        const bool isKnown = change.entry || meaning == PathMeaning::Entry;
        reason = isKnown ? objection(change, options.writing.reading()) : Message::NoDictionaryEntry;
    }
    if (!reason.isEmpty())
        throw Error{kInvalidCall, reason};
    return change;
}

int runChange(const ChangeOptions& options)
{
    const TagDictionary dictionary = loadDictionary(options.files);
    CommandOutput output;
    NodeChange nodeChange;
    if (!attempt(output, options.nodePath, [&] { nodeChange = changeOf(options, dictionary); })) {
        output.finish();
        return kWrongUsage;
    }
    std::vector<std::string> files = fileNames(options.files);
    deferInterruption();
    files = withoutRepeats(std::move(files));
    FailedList list(options.files);
    list.checkNames(files);
    UndoneFiles undone(files);
    const unsigned jobs = options.files.jobs;
    const BatchAction batch(files, std::move(nodeChange), batchOptions(options.writing, jobs));
    const BatchCounts counts = runBatch(batch, files, jobs, options.writing, output, undone);
    output.conclude(counts.begun, counts.total, countsText(counts));
    return list.finish(output, undone.names(), files);
}

} // namespace

Command setCommand()
{
    return command("set", "Set the value of a node, creating it where it is missing", addSetOptions, runChange);
}

Command deleteCommand()
{
    return command("delete", "Delete a node with everything below it", addNodeOptions<NodeAction::Delete>, runChange);
}

Command addCommand()
{
    return command("add", "Create a node that is missing, with what it needs", addNodeOptions<NodeAction::Add>,
                   runChange);
}

} // namespace ovisto
