#include "collection/BatchAction.h"

#include "collection/MetadataDocument.h"
#include "common/CodePage.h"
#include "common/File.h"
#include "common/PathText.h"
#include "writer/JpegDocument.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <set>
#include <utility>

namespace ovisto {

namespace {

constexpr std::int64_t kGroupBytes = std::int64_t{128} * 1024 * 1024; ///< as much is on its way to the disk at most

/// Keeps the first report about a file: those after it say what could not be done because of it.
class FirstReport : public ErrorReporter {
public:
    void report(const std::string& context, const Error& error) override
    {
        if (!m_first)
            m_first = Error{error.number, (context.empty() ? "" : shortened(context) + ": ") + error.description};
    }

    /// The first report, or `error` when nothing was reported.
    const Error& orElse(const Error& error) const { return m_first ? *m_first : error; }

private:
    /// A context may end with a whole value.
    static std::string shortened(const std::string& context)
    {
        constexpr std::size_t kMost = 200;
        if (characterCount(context) <= kMost)
            return context;
        std::string text;
        for (const char32_t character : characters(context).substr(0, kMost))
            appendCharacter(text, character);
        return text + "...";
    }

    std::optional<Error> m_first;
};

/// The new versions that wait to be put in place.
class Group {
public:
    explicit Group(ErrorReporter& reporter) : m_reporter(reporter) {}

    bool isFull() const { return m_members.size() >= BatchAction::kGroupSize || m_bytes >= kGroupBytes; }
    bool holds(const std::string& path) const { return m_realPaths.contains(realPath(path)); }

    /// Writes the new version of the file that `change` needs, if it needs one.
    void add(const std::string& path, const NodeChange& change)
    {
        auto member = std::make_unique<Member>(path);
        step(*member, [&] {
            XmlDocument document = loadDocument(path);
            if (applyChange(document, change, member->report))
                member->version.emplace(JpegDocument(member->report).writeTemporary(document, path));
        });
        if (!member->version)
            return;
        m_bytes += member->version->oldFile.size();
        m_realPaths.insert(realPath(path));
        m_members.push_back(std::move(member));
    }

    /// Puts all of them in place that the disk has.
    void finish()
    {
        for (const auto& member : m_members)
            step(*member, [&] { JpegDocument(member->report).finishTemporary(*member->version); });
        std::set<std::string> folders;
        for (const auto& member : m_members) {
            if (member->failed)
                continue;
            step(*member, [&] { JpegDocument(member->report).replaceOld(*member->version); });
            folders.insert(splitPath(member->version->fileName).folder);
        }
        for (const std::string& folder : folders)
            syncFolder(folder);
        m_members.clear();
        m_realPaths.clear();
        m_bytes = 0;
    }

private:
    struct Member {
        explicit Member(std::string filePath) : path(std::move(filePath)) {}

        std::string path;
        FirstReport report;
        std::optional<JpegDocument::NewVersion> version;
        bool failed = false;
    };

    /// Runs a step for a file and reports what it raises.
    template <class Step> void step(Member& member, Step work)
    {
        ErrorTrap trap;
        trap.run(work);
        member.failed = trap.pending();
        if (trap.pending())
            ErrorReport(m_reporter, member.path, member.report.orElse(trap.error()));
    }

    ErrorReporter& m_reporter;
    std::vector<std::unique_ptr<Member>> m_members;
    std::unordered_set<std::string> m_realPaths;
    std::int64_t m_bytes = 0;
};

} // namespace

BatchAction::BatchAction(const std::vector<std::string>& files, NodeChange change)
    : m_files(files), m_change(std::move(change)), m_overwriting(overwritingOthers(files))
{
}

void BatchAction::run(std::size_t first, std::size_t last, Progress& progress, ErrorReporter& reporter) const
{
    Group group(reporter);
    for (std::size_t i = first; i < last; ++i) {
        const std::string& path = m_files[i];
        if (!progress.step(path, i, m_files.size()))
            break;
        if (m_overwriting.contains(path)) {
            ErrorReport(reporter, path,
                        {kPathAccessError, "Another file of the list has the name of its temporary file"});
            continue;
        }
        // The second time a file comes along, what the first time made of it has to be there.
        if (group.isFull() || group.holds(path))
            group.finish();
        group.add(path, m_change);
    }
    group.finish();
}

std::unordered_set<std::string> overwritingOthers(const std::vector<std::string>& files)
{
    std::unordered_set<std::string> all;
    for (const std::string& file : files)
        all.insert(realPath(file));
    std::unordered_set<std::string> overwriting;
    for (const std::string& file : files) {
        if (all.contains(temporaryNameOf(realPath(file))))
            overwriting.insert(file);
    }
    return overwriting;
}

} // namespace ovisto
