// SPDX-License-Identifier: MIT

#include "cli/BatchRun.h"
#include "cli/Commands.h"
#include "cli/FailedList.h"
#include "collection/PrivateData.h"
#include "common/system/Interruption.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <map>
#include <mutex>

namespace ovisto {

namespace {

struct CleanOptions {
    FileOptions files;
    WritingOptions writing;
    std::vector<std::string> keep;
};

std::vector<std::string> kindNames()
{
    std::vector<std::string> names;
    for (const PrivateKindRow& row : kPrivateKinds)
        names.emplace_back(row.name);
    return names;
}

/// What --keep and --help say of the kinds.
std::string kindsText()
{
    std::string text = "KIND is one of these:\n\n";
    for (const PrivateKindRow& row : kPrivateKinds)
        text +=
            "  " + std::string(row.name).append(12 - std::string(row.name).size(), ' ') + sourceText(row.words) + "\n";
    return text + "\n"
                  "A thumbnail that shows the picture stays, and so do orientation, resolution, colours, dates and the "
                  "settings of the camera. An Exif segment stays even if nothing is left in it. If something cannot be "
                  "taken away, it is named, and the file counts as failed.";
}

void addCleanOptions(CLI::App& parser, CleanOptions& options)
{
    parser.add_option("--keep", options.keep, "Leave this in the file; several kinds with commas between them")
        ->option_text("KIND,...")
        ->delimiter(',')
        ->allow_extra_args(false)
        ->check(CLI::IsMember(kindNames()));
    parser.add_flag("--verbose", options.writing.verbose, "Say what was changed in each file, on standard error");
    addFiles(parser, options.files);
    parser.footer(kindsText());
}

/// What stayed in the files although it should not. Filled by several threads.
class Remains {
public:
    void add(const std::string& path, const Phrase& what)
    {
        const std::lock_guard lock(m_mutex);
        m_remains[path].push_back(what);
    }

    void report(const std::vector<std::string>& files, ErrorReporter& reporter) const
    {
        for (const std::string& path : files) {
            const auto found = m_remains.find(path);
            if (found == m_remains.end())
                continue;
            for (const Phrase& what : found->second)
                ErrorReport(reporter, path, {kInvalidCall, what});
        }
    }

private:
    std::mutex m_mutex;
    std::map<std::string, std::vector<Phrase>> m_remains;
};

int runClean(const CleanOptions& options)
{
    std::vector<std::string> files = fileNames(options.files);
    deferInterruption();
    files = withoutRepeats(std::move(files));
    const TagDictionary dictionary = loadDictionary(options.files);
    FailedList list(options.files);
    list.checkNames(files);
    UndoneFiles undone(files);
    Remains remains;
    const DocumentEdit edit = [&](XmlDocument& document, const std::string& path, ErrorReporter& reporter) {
        RemovalResult result;
        for (const PrivateFinding& finding : privateFindings(document, path, dictionary)) {
            if (std::ranges::find(options.keep, privateKindRow(finding.kind).name) != options.keep.end())
                continue;
            removeFinding(document, finding, reporter, result);
            if (finding.removal == Removal::None) {
                remains.add(path, findingText(finding));
                undone.addFailed(path);
            }
        }
        return EditResult{result.changed, result.clearance};
    };
    const auto isDone = [](const SaveReceipt& receipt) { // a note says which bytes stayed
        return std::ranges::find(receipt.notes, Message::SharedBytes, &Phrase::message) == receipt.notes.end();
    };
    CommandOutput output;
    const unsigned jobs = options.files.jobs;
    const BatchAction batch(files, edit, batchOptions(options.writing, jobs));
    const BatchCounts counts = runBatch(batch, files, jobs, options.writing, output, undone, isDone);
    remains.report(files, output);
    output.conclude(counts.begun, counts.total);
    return list.finish(output, undone.names(), files);
}

} // namespace

Command cleanCommand()
{
    return command("clean", "Take away what tells of people and places", addCleanOptions, runClean);
}

} // namespace ovisto
