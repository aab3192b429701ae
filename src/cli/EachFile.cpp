// SPDX-License-Identifier: MIT

#include "cli/EachFile.h"

#include "cli/CommandOutput.h"
#include "cli/FailedList.h"
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

int runEach(const FileOptions& options, const std::vector<std::string>& files, const FileWork& work)
{
    FailedList list(options);
    list.checkNames(files);
    CommandOutput output;
    std::size_t done = 0;
    std::vector<std::string> undone;
    const auto finish = [&](const FileResult& result) {
        output.write(result);
        if (hasFailed(result))
            undone.push_back(files[done]);
        ++done;
    };
    forEachFile(
        files, options.jobs, [&](std::size_t index) { return resultOf(files[index], work); }, finish,
        output.progress());
    output.conclude(done, files.size());
    undone.insert(undone.end(), files.begin() + static_cast<std::ptrdiff_t>(done), files.end());
    return list.finish(output, undone, files);
}

} // namespace ovisto
