// SPDX-License-Identifier: MIT

#include "cli/Commands.h"
#include "cli/EachFile.h"
#include "cli/Options.h"
#include "cli/TerminalText.h"
#include "collection/DocumentSaving.h"
#include "common/system/Interruption.h"

namespace ovisto {

namespace {

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
    return runEach(files, options.jobs, work);
}

} // namespace

Command checkCommand()
{
    return command("check", "Say what --rebuild would lose, without writing; status 1 if anything", addFiles, runCheck);
}

} // namespace ovisto
