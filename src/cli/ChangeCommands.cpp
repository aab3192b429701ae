#include "cli/CommandOutput.h"
#include "cli/Commands.h"
#include "cli/FileLoop.h"
#include "cli/Options.h"
#include "collection/BatchAction.h"
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

/// Progress over files where the loop counts stretches of them.
class StretchProgress : public Progress {
public:
    StretchProgress(Progress& files, std::size_t stretch, std::size_t total)
        : m_files(files), m_stretch(stretch), m_total(total)
    {
    }

    bool step(const std::string& path, std::size_t done, std::size_t /*total*/) override
    {
        return m_files.step(path, done * m_stretch, m_total);
    }

private:
    Progress& m_files;
    std::size_t m_stretch;
    std::size_t m_total;
};

/// Progress within a stretch, which is not shown.
class UnwatchedProgress : public Progress {
public:
    bool step(const std::string& /*path*/, std::size_t /*done*/, std::size_t /*total*/) override
    {
        return !interrupted();
    }
};

void changeFiles(const std::vector<std::string>& files, const NodeChange& change, const ChangeOptions& options,
                 CommandOutput& output)
{
    const unsigned jobs = options.files.jobs;
    const BatchAction batch(
        files, change,
        {.way = options.writing.way(),
         .reading = options.writing.reading(),
         .jobs = jobs,
         .onOtherChange = options.writing.force ? OnOtherChange::ChangeAgain : OnOtherChange::Refuse});
    // A thread takes a whole group at a time, unless others would have nothing to do.
    const std::size_t fair = (files.size() + jobs - 1) / jobs;
    const std::size_t stretch = std::clamp<std::size_t>(fair, 1, batch.groupSize());
    std::vector<std::string> firstFiles;
    for (std::size_t i = 0; i < files.size(); i += stretch)
        firstFiles.push_back(files[i]);
    const auto work = [&](std::size_t index) {
        FileResult result;
        LineReporter reporter(result.errors);
        UnwatchedProgress unwatched;
        const std::size_t first = index * stretch;
        const SavedFile saved = [&](const std::string& path, const SaveReceipt& receipt) {
            result.notes += savedLines(options.writing, path, receipt);
        };
        batch.run(first, std::min(first + stretch, files.size()), unwatched, reporter, saved);
        return result;
    };
    StretchProgress progress(output.progress(), stretch, files.size());
    forEachFile(
        firstFiles, jobs, work, [&](const FileResult& result) { output.write(result); }, progress);
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
        changeFiles(files, nodeChange, options, output);
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
