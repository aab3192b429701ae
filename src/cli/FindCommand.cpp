// SPDX-License-Identifier: MIT

#include "cli/CommandOutput.h"
#include "cli/Commands.h"
#include "cli/FailedList.h"
#include "cli/FileLoop.h"
#include "cli/Options.h"
#include "cli/TerminalText.h"
#include "collection/ContentFilter.h"
#include "collection/FolderScan.h"
#include "common/system/File.h"
#include "common/text/CodePage.h"

#include <CLI/CLI.hpp>

#include <deque>
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
                    "The folder to search; none needed with --files-from, whose files may have any name")
        ->option_text(" ")
        ->check(nameObjection);
    parser
        .add_option("--pattern", scan.patterns,
                    "Names of files: * stands for any characters, ? for one, ; separates patterns (default: " +
                        scan.patterns + ")")
        ->option_text("P");
    parser
        .add_option(
            "--words", scan.content.words,
            "Only files whose metadata contains one of these words, with commas between them; names of elements "
            "count, too")
        ->option_text("W");
    parser.add_flag("--all-words", scan.content.allWords, "Only files that contain all of the words");
    parser.add_flag("--whole-words", scan.content.wholeWords, "Only whole words, not parts of longer ones");
    parser.add_flag("--regexp", scan.content.regExp, "Take W as a regular expression");
    parser.add_flag("--values", options.values,
                    "Search also what the values mean, as show prints it: 1/125 s, turned right");
    addBasicOption(parser, scan.content.reading);
    parser.add_flag("!--no-subfolders", scan.subFolders, "Search only FOLDER itself, not the folders in it");
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
    /// Raises an error if the list cannot be read. A folder that cannot is reported to `output`, which must outlive the
    /// object.
    FilesToSearch(const FindOptions& options, CommandOutput& output)
        : m_output(output), m_hasFolder(!options.scan.folder.empty()), m_listed(fileNames(options.files))
    {
        const ScanOptions& scan = options.scan;
        if (m_hasFolder)
            attempt(output, scan.folder, [&] { startWalk(m_walk, scan); });
    }

    /// The next file; none after the last one.
    std::optional<std::string> next()
    {
        auto file = m_walk ? m_walk->next(m_output.progress(), m_output) : std::nullopt;
        if (file)
            return std::move(file->path);
        return m_place == m_listed.size() ? std::nullopt : std::optional(m_listed[m_place++]);
    }

    bool hasFolder() const { return m_hasFolder; }

    /// Whether the folder, if any, was gone through to its end, with all its subfolders.
    bool isWhole() const { return !m_hasFolder || (m_walk && m_walk->isWhole()); }

    /// Those of the list.
    const std::vector<std::string>& listed() const { return m_listed; }

    /// Those of the list that next() has not returned.
    std::vector<std::string> rest() const
    {
        return {m_listed.begin() + static_cast<std::ptrdiff_t>(m_place), m_listed.end()};
    }

private:
    CommandOutput& m_output;
    bool m_hasFolder;
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

/// Ends the command, which did not do the files `undone` and those that are left of `files`.
int finishFind(CommandOutput& output, FailedList& list, const FilesToSearch& files, std::vector<std::string> undone)
{
    const bool isKnown = files.isWhole() && (output.flush() || !files.hasFolder());
    if (list.isWanted() && !isKnown) {
        output.write({.errors = errorLine("", "No list of failed files, as it would lack files of the folder")});
        list.giveUp();
    }
    const std::vector<std::string> rest = files.rest();
    undone.insert(undone.end(), rest.begin(), rest.end());
    return list.finish(output, undone, files.listed());
}

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
    FailedList list(options.files);
    list.checkNames(files.listed());
    UncheckedFiles unchecked;
    std::deque<std::string> begun; // the files from the one whose result is next
    std::vector<std::string> undone;
    const auto next = [&] {
        auto path = unchecked.areTooMany() ? std::nullopt : files.next();
        if (path)
            begun.push_back(*path);
        return path;
    };
    const auto work = [&](const std::string& path) {
        FileResult result;
        ErrorTrap trap;
        trap.run([&] {
            if (filter->keeps(path))
                result.output = path + (options.files.zeroSeparated ? '\0' : '\n');
        });
        result.failed = trap.pending();
        if (trap.pending())
            unchecked.add(trap.take());
        return result;
    };
    const auto finish = [&](const FileResult& result) {
        output.write(result);
        if (hasFailed(result))
            undone.push_back(begun.front());
        begun.pop_front();
    };
    forEachFile(next, options.files.jobs, work, finish, output.progress());
    unchecked.report(output);
    return finishFind(output, list, files, undone);
}

} // namespace

Command findCommand()
{
    return command("find", "Print the paths of files found by name and metadata", addFindOptions, runFind);
}

} // namespace ovisto
