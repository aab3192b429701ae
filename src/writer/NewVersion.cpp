#include "writer/NewVersion.h"

#include "common/system/FileReplacement.h"
#include "common/text/PathText.h"
#include "writer/FilePatch.h"
#include "writer/JpegRebuilding.h"

#include <map>
#include <optional>
#include <utility>

namespace ovisto {

namespace {

/// The file at `path`, opened. A failure is reported in `context`.
template <class File> File opened(ErrorReporter& reporter, const Phrase& context, const std::string& path)
{
    std::optional<File> file;
    reported(reporter, context, [&] { file.emplace(path); });
    return std::move(*file);
}

/// Reports and raises the failure, if any, to replace the file `target`.
void raise(const std::optional<ReplaceFailure>& failure, const std::string& target, ErrorReporter& reporter)
{
    if (!failure)
        return;
    const Phrase context = failure->step == ReplaceStep::Delete
                               ? Phrase(Message::DeleteOldFile, target)
                               : Phrase(Message::RenameFile, temporaryNameOf(target), target);
    ErrorReport(reporter, context, failure->error);
    throw failure->error;
}

/// The file that `fileName` leads to.
std::string replaceableTarget(const std::string& fileName, Leftover leftover, ErrorReporter& reporter)
{
    std::string target = linkTarget(fileName);
    if (leftover == Leftover::Spared)
        raise(replaceObstacle(target), target, reporter);
    return target;
}

} // namespace

NewVersion::NewVersion(ErrorReporter& reporter, const std::string& fileName, Leftover leftover,
                       const std::optional<FileIdentity>& asRead)
    : m_reporter(reporter), m_leftover(leftover), m_target(replaceableTarget(fileName, leftover, reporter)),
      m_temporaryName(temporaryNameOf(m_target)), m_oldFile(opened<InputFile>(reporter, fileName, m_target)),
      m_asRead(oldIdentity(asRead)), m_newFile(opened<OutputFile>(reporter, m_temporaryName, m_temporaryName))
{
}

/// The identity of the old file, which has to be the one that was read.
FileIdentity NewVersion::oldIdentity(const std::optional<FileIdentity>& asRead) const
{
    FileIdentity identity;
    reported(m_reporter, m_target, [&] {
        if (asRead && !isSameFile(*asRead, m_oldFile))
            throw fileWasChanged();
        identity = asRead ? *asRead : identityOf(m_oldFile);
    });
    return identity;
}

void NewVersion::write(XmlDocument& document, const DocumentReader& read)
{
    rebuild(document);
    checkNewFile([&] { readBack(m_temporaryName, read); });
}

void NewVersion::write(const DocumentSave& save)
{
    if (save.way == WritingWay::Rebuild)
        rebuild(save.after);
    else
        writeWhole([&] { patch(save); });
    checkNewFile([&] { compare(save); });
}

void NewVersion::rebuild(XmlDocument& document)
{
    writeWhole([&] { rebuildJpeg(document, m_oldFile, m_newFile, m_temporaryName, m_reporter); });
}

/// A change that cannot be made is a matter of the photograph, not of the temporary file.
void NewVersion::patch(const DocumentSave& save)
{
    ErrorTrap trap;
    trap.run([&] { patchJpeg(save.before, save.after, m_oldFile, m_newFile, m_reporter); });
    const bool isOfDisk = trap.pending() && isOfSystem(trap.error());
    reportPending(m_reporter, isOfDisk ? Phrase(Message::WriteFailed, m_temporaryName) : Phrase(m_target), trap);
    trap.raise();
}

void NewVersion::compare(const DocumentSave& save)
{
    const InputFile newFile(m_temporaryName);
    m_receipt = compareVersions(m_oldFile, newFile, m_temporaryName, save.before, save.after, save.read);
    if (save.way == WritingWay::Keep && !m_receipt.losses.empty())
        throw Error{kInvalidCall, m_receipt.losses.front()};
}

/// Runs a check that the new version may fail. It is then of no use and is deleted.
template <class Check> void NewVersion::checkNewFile(Check check)
{
    ErrorTrap trap;
    trap.run([&] { reported(m_reporter, m_target, check); });
    if (trap.pending())
        m_newFile.discard();
    trap.raise();
}

void NewVersion::bringToDisk()
{
    const auto sync = [&] { m_newFile.sync(); };
    if (!m_onDisk)
        spared([&] { reported(m_reporter, Phrase(Message::WriteFailed, m_temporaryName), sync); });
    m_onDisk = true;
}

void NewVersion::bringToDiskTogether(const std::vector<NewVersion*>& versions)
{
    std::map<std::uint64_t, bool> onDisk; // by file system
    for (NewVersion* version : versions) {
        ErrorTrap trap; // what fails here is for bringToDisk() to report
        trap.run([&] {
            // The first file of a file system is its oldest: it hears of what failed to any of the others.
            const auto [place, isFirst] = onDisk.try_emplace(version->m_newFile.device(), false);
            if (isFirst)
                place->second = version->m_newFile.syncFileSystem();
            version->m_onDisk = place->second;
        });
    }
}

void NewVersion::putInPlace()
{
    checkNewFile([&] { checkOldFile(); });
    if (!m_receipt.losses.empty()) {
        ErrorTrap trap;
        trap.run([&] { keepOriginal(); });
        if (trap.pending())
            m_newFile.discard();
        trap.raise();
        checkNewFile([&] { checkKeptFile(); }); // that took its time
    }
    raise(replaceFile(m_temporaryName, m_target), m_target, m_reporter);
}

/// Between the two steps of a save: what another program made of the old file in the meantime is not overwritten. The
/// second look is the last thing before the rename, as comparing contents takes time.
void NewVersion::checkOldFile() const
{
    const InputFile now(m_target);
    if (!isSameFile(m_asRead, now) || InputFile(m_target).status() != now.status())
        throw fileWasChanged();
}

void NewVersion::checkKeptFile() const
{
    ErrorTrap trap;
    trap.run([&] { checkOldFile(); });
    if (trap.pending() && m_receipt.original == Original::Kept)
        forgetKept(m_receipt.originalName);
    trap.raise();
}

void NewVersion::keepOriginal()
{
    m_receipt.originalName = m_target + ".original";
    reported(m_reporter, m_receipt.originalName, [&] {
        m_receipt.original = keepFile(m_target, m_receipt.originalName) ? Original::Kept : Original::WasThere;
        syncFolder(folder());
    });
}

std::string NewVersion::folder() const
{
    return splitPath(m_target).folder;
}

/// Writes the new file: its content, which `fill` writes and reports on, then what it takes from the old one.
template <class Fill> void NewVersion::writeWhole(Fill fill)
{
    const auto finish = [&] {
        m_newFile.takeAttributesFrom(m_oldFile);
        m_newFile.startSync();
    };
    spared([&] {
        fill();
        reported(m_reporter, Phrase(Message::WriteFailed, m_temporaryName), finish);
    });
}

/// Runs `step`. When it fails, the new file is of no use and is deleted, unless leftovers are kept.
template <class Step> void NewVersion::spared(Step step)
{
    ErrorTrap trap;
    trap.run(step);
    if (trap.pending() && (m_leftover == Leftover::Spared || isFileWasChanged(trap.error())))
        m_newFile.discard();
    trap.raise();
}

} // namespace ovisto
