// SPDX-License-Identifier: MIT

#include "cli/CommandOutput.h"
#include "cli/Commands.h"
#include "cli/FileLoop.h"
#include "cli/Options.h"
#include "collection/ContentFilter.h"
#include "collection/FolderScan.h"
#include "common/system/File.h"
#include "common/text/CodePage.h"

#include <CLI/CLI.hpp>

#include <mutex>
#include <optional>
#include <utility>
#include <vector>

namespace ovisto {

namespace {

struct FindOptions {
    ScanOptions scan;
    FileOptions files; ///< those of the list only
    bool values = false;
};

void addFindOptions(CLI::App& parser, FindOptions& options)
{
    ScanOptions& scan = options.scan;
    parser
        .add_option("FOLDER", scan.folder,
                    "Where to look; not needed with --files-from, whose files are taken by any name")
        ->option_text(" ");
    parser.add_option("--pattern", scan.patterns, "Names of files: * any run, ? one character, ; between patterns")
        ->option_text("P [" + scan.patterns + "]");
    parser
        .add_option("--words", scan.content.words,
                    "Words that the metadata contains, any one of them; , between words. Names of tags count too")
        ->option_text("W");
    parser.add_flag("--all-words", scan.content.allWords, "All of the words");
    parser.add_flag("--whole-words", scan.content.wholeWords, "Not as parts of longer words");
    parser.add_flag("--regexp", scan.content.regExp, "W is a regular expression, not a list of words");
    parser.add_flag("--values", options.values, "Search the values as show prints them, too: 1/125 s, turned right");
    addBasicOption(parser, scan.content.reading);
    parser.add_flag("!--no-subfolders", scan.subFolders, "Only in FOLDER itself");
    addFileList(parser, options.files);
    parser.final_callback([&options] {
        if (options.scan.folder.empty() && options.files.filesFrom.empty())
            throw CLI::RequiredError("FOLDER");
    });
}

/// Begins to walk through the folder. A walk says of any folder that it cannot read that it is not found.
void startWalk(std::optional<FolderWalk>& walk, const ScanOptions& scan)
{
    ErrorTrap trap;
    trap.run([&] { walk.emplace(scan.folder, scan.patterns, scan.subFolders); });
    if (!trap.pending())
        return;
    const int number = trap.error().number;
    if (number != kFileNotFound && number != kPathNotFound)
        throw systemError(number);
    throw Error{number, fileExists(scan.folder) ? Message::IsNotAFolder : Message::FolderNotFound};
}

/// The files to look at: those of the folder, which is gone through meanwhile, then those of the list.
class FilesToSearch {
public:
    /// A folder or a list that cannot be read is reported to `output`, which must outlive the object.
    FilesToSearch(const FindOptions& options, CommandOutput& output) : m_output(output)
    {
        const ScanOptions& scan = options.scan;
        if (!scan.folder.empty())
            attempt(output, scan.folder, [&] { startWalk(m_walk, scan); });
        attempt(output, "", [&] { m_listed = fileNames(options.files); });
    }

    /// The next file; none after the last one.
    std::optional<std::string> next()
    {
        auto file = m_walk ? m_walk->next(m_output.progress(), m_output) : std::nullopt;
        if (file)
            return std::move(file->path);
        return m_place == m_listed.size() ? std::nullopt : std::optional(std::move(m_listed[m_place++]));
    }

private:
    CommandOutput& m_output;
    std::optional<FolderWalk> m_walk;
    std::vector<std::string> m_listed;
    std::size_t m_place = 0;
};

/// The files that could not be checked, which several threads find. They are reported at the end, when it is known
/// whether they are few enough to be named.
class UncheckedFiles {
public:
    void add(const Error& error)
    {
        const std::lock_guard lock(m_mutex);
        m_checks.add(error);
        m_errors.push_back(error);
    }

    bool areTooMany()
    {
        const std::lock_guard lock(m_mutex);
        return m_checks.areTooMany();
    }

    void report(ErrorReporter& reporter)
    {
        if (areTooMany())
            m_errors = {*m_checks.summary()};
        for (const Error& error : m_errors)
            ErrorReport(reporter, "", error);
    }

private:
    std::mutex m_mutex;
    FailedChecks m_checks;
    std::vector<Error> m_errors;
};

int runFind(const FindOptions& options)
{
    CommandOutput output;
    ContentSearch content = options.scan.content;
    content.words = decodedText(content.words);
    std::optional<TagDictionary> dictionary;
    std::optional<ContentFilter> filter;
    if (!attempt(output, "", [&] {
            if (options.values)
                content.values.dictionary = &dictionary.emplace(loadDictionary(options.files));
            filter.emplace(content);
        })) {
        output.finish();
        return kWrongUsage;
    }
    FilesToSearch files(options, output);
    UncheckedFiles unchecked;
    const auto work = [&](const std::string& path) {
        FileResult result;
        ErrorTrap trap;
        trap.run([&] {
            if (filter->keeps(path))
                result.output = path + (options.files.zeroSeparated ? '\0' : '\n');
        });
        if (trap.pending())
            unchecked.add(trap.take());
        return result;
    };
    forEachFile([&] { return unchecked.areTooMany() ? std::nullopt : files.next(); }, options.files.jobs, work,
                [&](const FileResult& result) { output.write(result); }, output.progress());
    unchecked.report(output);
    return output.finish();
}

} // namespace

Command findCommand()
{
    return command("find", "Find files by name and metadata, one path a line", addFindOptions, runFind);
}

} // namespace ovisto
