#include "cli/CollectionCommands.h"

#include "cli/CommandOutput.h"
#include "cli/FileLoop.h"
#include "cli/FileNames.h"
#include "cli/TerminalText.h"
#include "collection/BatchAction.h"
#include "collection/ContentFilter.h"
#include "collection/FolderWalk.h"
#include "collection/Report.h"
#include "common/system/File.h"
#include "common/system/Interruption.h"
#include "common/system/TemporaryFile.h"
#include "common/text/CodePage.h"
#include "common/xml/XmlLoad.h"
#include "common/xml/XmlTransform.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <optional>

namespace ovisto {

namespace {

/// A text from the command line. One that is no UTF-8 comes from a terminal with a code page.
std::string textOf(const std::string& argument)
{
    if (isUtf8(argument))
        return argument;
    std::string text;
    appendCharacters(text, {reinterpret_cast<const std::uint8_t*>(argument.data()), argument.size()},
                     ControlBytes::Keep);
    return text;
}

/// Makes a line of each report.
class LineReporter : public ErrorReporter {
public:
    explicit LineReporter(std::string& lines) : m_lines(lines) {}

    void report(const std::string& context, const Error& error) override
    {
        m_lines += errorLine(context, error.description);
    }

private:
    std::string& m_lines;
};

/// Writes each report to the output at once.
class OutputReporter : public ErrorReporter {
public:
    explicit OutputReporter(CommandOutput& output) : m_output(output) {}

    void report(const std::string& context, const Error& error) override
    {
        m_output.fail(errorLine(context, error.description));
    }

private:
    CommandOutput& m_output;
};

/// The files that a search is to look at: those of its folder, which is gone through meanwhile, then those of its list.
class FilesToSearch {
public:
    /// A folder or a list that cannot be read is told to `output`, which must outlive the object.
    FilesToSearch(const CommandLine& line, CommandOutput& output) : m_progress(output.progress()), m_reporter(output)
    {
        ErrorTrap trap;
        if (!line.scan.folder.empty())
            trap.run([&] { m_walk.emplace(line.scan.folder, line.scan.patterns, line.scan.subFolders); });
        if (trap.pending())
            ErrorReport(m_reporter, line.scan.folder, trap.take());
        trap.run([&] { m_listed = fileNames(line); });
        if (trap.pending())
            ErrorReport(m_reporter, "", trap.take());
    }

    /// The next file; none after the last one.
    std::optional<std::string> next()
    {
        auto file = m_walk ? m_walk->next(m_progress, m_reporter) : std::nullopt;
        if (file)
            return std::move(file->path);
        return m_place == m_listed.size() ? std::nullopt : std::optional(std::move(m_listed[m_place++]));
    }

private:
    Progress& m_progress;
    OutputReporter m_reporter;
    std::optional<FolderWalk> m_walk;
    std::vector<std::string> m_listed;
    std::size_t m_place = 0;
};

/// Progress over files where the loop counts stretches of them; or where nobody watches, as a stretch is done at once.
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

class UnwatchedProgress : public Progress {
public:
    bool step(const std::string& /*path*/, std::size_t /*done*/, std::size_t /*total*/) override
    {
        return !interrupted();
    }
};

/// The change, or an error that says why it cannot be made to any file.
NodeChange changeOf(const CommandLine& line, const TagDictionary& dictionary)
{
    NodeChange change{.action = NodeAction::Set, .entry = {}, .value = textOf(line.value)};
    if (line.command == Command::Delete)
        change.action = NodeAction::Delete;
    else if (line.command == Command::Add)
        change.action = NodeAction::Add;
    ErrorTrap trap;
    trap.run([&] { change.entry = dictionary.entry(line.nodePath); });
    if (!change.entry)
        throw Error{kInvalidCall, "The tag dictionary has no node " + line.nodePath};
    if (const std::string reason = objection(change); !reason.empty())
        throw Error{kInvalidCall, line.nodePath + ": " + reason};
    return change;
}

/// Whether a JPEG file is there: the name of the output was forgotten, and the first of the files taken for it.
bool isPhotograph(const std::string& path)
{
    std::array<std::uint8_t, 2> start{};
    ErrorTrap trap;
    if (!path.empty())
        trap.run([&] { InputFile(path).readAt(0, start); });
    return start == std::array<std::uint8_t, 2>{0xFF, 0xD8};
}

} // namespace

int runChange(const CommandLine& line, const std::vector<std::string>& files, const TagDictionary& dictionary)
{
    CommandOutput output;
    NodeChange change;
    ErrorTrap trap;
    trap.run([&] { change = changeOf(line, dictionary); });
    if (trap.pending()) {
        for (const std::string& path : files)
            output.fail(errorLine(path, trap.error().description));
        return output.finish();
    }
    const BatchAction batch(files, change, line.jobs);
    // A thread takes a whole group at a time, unless others would have nothing to do.
    const std::size_t fair = (files.size() + line.jobs - 1) / line.jobs;
    const std::size_t stretch = std::clamp<std::size_t>(fair, 1, batch.groupSize());
    std::vector<std::string> firstFiles;
    for (std::size_t i = 0; i < files.size(); i += stretch)
        firstFiles.push_back(files[i]);
    const auto work = [&](std::size_t index) {
        FileResult result;
        LineReporter reporter(result.errors);
        UnwatchedProgress unwatched;
        const std::size_t first = index * stretch;
        batch.run(first, std::min(first + stretch, files.size()), unwatched, reporter);
        return result;
    };
    StretchProgress progress(output.progress(), stretch, files.size());
    forEachFile(
        firstFiles, line.jobs, work, [&](const FileResult& result) { output.write(result); }, progress);
    return output.finish();
}

int runFind(const CommandLine& line)
{
    CommandOutput output;
    ContentSearch content = line.scan.content;
    content.words = textOf(content.words);
    std::optional<ContentFilter> filter;
    ErrorTrap trap;
    trap.run([&] { filter.emplace(content); });
    if (trap.pending()) {
        output.fail(errorLine("", trap.take().description));
        output.finish();
        return kWrongUsage;
    }
    FilesToSearch files(line, output);
    const auto work = [&](const std::string& path) {
        FileResult result;
        ErrorTrap check;
        check.run([&] {
            if (filter->keeps(path))
                result.output = path + (line.zeroSeparated ? '\0' : '\n');
        });
        if (check.pending())
            result.errors = errorLine("", check.take().description);
        return result;
    };
    forEachFile([&] { return files.next(); }, line.jobs, work, [&](const FileResult& result) { output.write(result); },
                output.progress());
    return output.finish();
}

int runReport(const CommandLine& line, const std::vector<std::string>& files)
{
    CommandOutput output;
    if (isPhotograph(line.output)) {
        output.fail(errorLine(line.output, "A photograph is not replaced by a report"));
        return output.finish();
    }
    Transformation report;
    ErrorTrap trap;
    trap.run([&] {
        XmlDocument style;
        XmlDocument document;
        loadStyleSheet(style, line.styleSheet, FileKind::RegularOrPipe);
        const TemporaryFile combined;
        for (const FileFailure& failure : combineDocuments(files, line.keep, combined.path(), output.progress()))
            output.fail(errorLine(failure.path, failure.error.description));
        if (interrupted())
            return;
        XMLLoad(document, combined.path());
        report =
            transformNode(document, std::move(style), line.output.empty() ? TextEncoding::Utf8 : TextEncoding::Utf16);
    });
    if (interrupted())
        return output.finish(); // a report on some of the files is none
    if (trap.pending())
        output.fail(errorLine("", trap.take().description));
    else if (report.error)
        output.fail(errorLine(line.styleSheet, report.error->description));
    else if (line.output.empty())
        output.write({.output = report.bytes, .errors = {}});
    else
        trap.run([&] { writeTextFile(line.output, report.bytes); });
    if (trap.pending())
        output.fail(errorLine(line.output, trap.take().description));
    return output.finish();
}

} // namespace ovisto
