// SPDX-License-Identifier: MIT

#include "cli/BatchRun.h"
#include "cli/Commands.h"
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
    std::string text = "KIND is one of:\n";
    for (const PrivateKindRow& row : kPrivateKinds)
        text +=
            "  " + std::string(row.name).append(12 - std::string(row.name).size(), ' ') + sourceText(row.words) + "\n";
    return text +
           "A thumbnail that shows the picture stays, and so do orientation, resolution, colours, dates and the\n"
           "settings of the camera. An Exif segment stays even if nothing is left in it. Status 1 also if\n"
           "something could not be taken away, which is then named.";
}

void addCleanOptions(CLI::App& parser, CleanOptions& options)
{
    parser.add_option("--keep", options.keep, "What is to stay, with commas between; see below")
        ->option_text("KIND,...")
        ->delimiter(',')
        ->allow_extra_args(false)
        ->check(CLI::IsMember(kindNames()));
    parser.add_flag("--verbose", options.writing.verbose, "Say how much of each file was changed");
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
    Remains remains;
    const DocumentEdit edit = [&](XmlDocument& document, const std::string& path, ErrorReporter& reporter) {
        RemovalResult result;
        for (const PrivateFinding& finding : privateFindings(document, path, dictionary)) {
            if (std::ranges::find(options.keep, privateKindRow(finding.kind).name) != options.keep.end())
                continue;
            removeFinding(document, finding, reporter, result);
            if (finding.removal == Removal::None)
                remains.add(path, findingText(finding));
        }
        return EditResult{result.changed, result.clearance};
    };
    const auto isDone = [](const SaveReceipt& receipt) { // a note says which bytes stayed
        return std::ranges::find(receipt.notes, Message::SharedBytes, &Phrase::message) == receipt.notes.end();
    };
    CommandOutput output;
    const unsigned jobs = options.files.jobs;
    const BatchAction batch(files, edit, batchOptions(options.writing, jobs));
    const BatchCounts counts = runBatch(batch, files, jobs, options.writing, output, isDone);
    remains.report(files, output);
    output.conclude(counts.begun, counts.total);
    return output.finish();
}

} // namespace

Command cleanCommand()
{
    return command("clean", "Take away what tells of people and places, before files are shared", addCleanOptions,
                   runClean);
}

} // namespace ovisto
