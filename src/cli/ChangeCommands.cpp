#include "cli/BatchRun.h"
#include "cli/CommandOutput.h"
#include "cli/Commands.h"
#include "cli/Options.h"
#include "common/system/Interruption.h"
#include "common/text/CodePage.h"

#include <CLI/CLI.hpp>

#include <algorithm>

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
    parser.add_option("NODEPATH", options.nodePath, "The node, as in /JPEG/Exif[@id='FFE1']/IFD[@id='9C9B']")
        ->option_text(" ")
        ->required();
}

void addSetOptions(CLI::App& parser, ChangeOptions& options)
{
    options.action = NodeAction::Set;
    addNodePath(parser, options);
    parser.add_option("VALUE", options.value, "The new value")->option_text(" ")->required();
    addWritingOptions(parser, options.writing);
    addFiles(parser, options.files);
}

template <NodeAction kAction> void addNodeOptions(CLI::App& parser, ChangeOptions& options)
{
    options.action = kAction;
    addNodePath(parser, options);
    addWritingOptions(parser, options.writing);
    addFiles(parser, options.files);
}

/// The change, or an error that says why it cannot be made to any file.
NodeChange changeOf(const ChangeOptions& options, const TagDictionary& dictionary)
{
    NodeChange change{.action = options.action, .entry = {}, .value = decodedText(options.value)};
    ErrorTrap trap; // what is not a path names no node
    trap.run([&] { change.entry = dictionary.entry(options.nodePath); });
    if (!change.entry)
        throw Error{kInvalidCall, "The tag dictionary has no node " + options.nodePath};
    if (const Phrase reason = objection(change, options.writing.reading()); !reason.isEmpty())
        throw Error{kInvalidCall, {Message::InContext, options.nodePath, reason}};
    return change;
}

int runChange(const ChangeOptions& options)
{
    std::vector<std::string> files = fileNames(options.files);
    deferInterruption();
    files = withoutRepeats(std::move(files));
    const TagDictionary dictionary = loadDictionary(options.files);
    CommandOutput output;
    NodeChange nodeChange;
    ErrorTrap trap;
    trap.run([&] { nodeChange = changeOf(options, dictionary); });
    if (!trap.pending())
        runBatch(BatchAction(files, std::move(nodeChange), batchOptions(options.writing, options.files.jobs)), files,
                 options.files.jobs, options.writing, output);
    else
        std::ranges::for_each(files, [&](const auto& path) { ErrorReport(output, path, trap.error()); });
    return output.finish();
}

} // namespace

Command setCommand()
{
    return command("set", "Set the value of a node, creating it where needed", addSetOptions, runChange);
}

Command deleteCommand()
{
    return command("delete", "Delete a node with all below it", addNodeOptions<NodeAction::Delete>, runChange);
}

Command addCommand()
{
    return command("add", "Create a node with what it needs", addNodeOptions<NodeAction::Add>, runChange);
}

} // namespace ovisto
