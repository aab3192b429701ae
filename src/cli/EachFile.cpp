// SPDX-License-Identifier: MIT

#include "cli/EachFile.h"

#include "cli/CommandOutput.h"
#include "cli/TerminalText.h"
#include "common/FirstReport.h"

namespace ovisto {

namespace {

FileResult resultOf(const std::string& path, const FileWork& work)
{
    FileResult result;
    FirstReport reporter;
    ErrorTrap trap;
    trap.run([&] { work(path, result, reporter); });
    if (trap.pending())
        result.errors = errorLine(path, reporter.orElse(trap.error()).description);
    return result;
}

} // namespace

int runEach(const std::vector<std::string>& files, unsigned jobs, const FileWork& work)
{
    CommandOutput output;
    std::size_t done = 0;
    const auto finish = [&](const FileResult& result) {
        output.write(result);
        ++done;
    };
    forEachFile(
        files, jobs, [&](std::size_t index) { return resultOf(files[index], work); }, finish, output.progress());
    output.conclude(done, files.size());
    return output.finish();
}

} // namespace ovisto
