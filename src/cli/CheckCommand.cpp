// SPDX-License-Identifier: MIT

#include "cli/Commands.h"
#include "cli/EachFile.h"
#include "cli/Options.h"
#include "cli/TerminalText.h"
#include "collection/DocumentSaving.h"
#include "common/system/Interruption.h"

#include <CLI/CLI.hpp>

namespace ovisto {

namespace {

void addCheckOptions(CLI::App& parser, FileOptions& options)
{
    addFiles(parser, options);
    parser.footer("Each line names a file and what it would lose. Such a file counts as failed: the exit status is 1.");
}

int runCheck(const FileOptions& options)
{
    const auto work = [](const std::string& path, FileResult& result, ErrorReporter& reporter) {
        const SaveReceipt receipt = tryRebuilding(path, reporter);
        for (const Phrase& loss : receipt.losses)
            result.output += oneLine(path + ": " + inEnglish(loss), std::string::npos) + "\n";
        result.failed = !receipt.losses.empty();
    };
    const std::vector<std::string> files = fileNames(options);
    deferInterruption();
    return runEach(options, files, work);
}

} // namespace

Command checkCommand()
{
    return command("check", "Say what --rebuild would lose, without writing", addCheckOptions, runCheck);
}

} // namespace ovisto
