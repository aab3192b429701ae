// SPDX-License-Identifier: MIT

#include "writer/NewVersion.h"

#include "common/system/FileNames.h"
#include "writer/FilePatch.h"
#include "writer/JpegRebuilding.h"
#include "writer/Leftover.h"

#include <map>
#include <optional>
#include <utility>

namespace ovisto {

namespace {

/// What `make` returns. A failure is reported in `context`.
template <class Make> auto madeOrReported(ErrorReporter& reporter, const Phrase& context, Make make)
{
    std::optional<decltype(make())> made;
    reported(reporter, context, [&] { made.emplace(make()); });
    return std::move(*made);
}

} // namespace

NewVersion::NewVersion(ErrorReporter& reporter, const std::string& fileName, const NewVersionOptions& options)
    : m_reporter(reporter), m_isSpared(options.isSpared), m_target(target(fileName, options.readOnlyFails)),
      m_oldFile(madeOrReported(reporter, fileName, [&] { return InputFile(m_target); })),
      m_asRead(oldIdentity(options.asRead)),
      m_newFile(madeOrReported(
          reporter, temporaryName(m_target),
          [&] { return OutputFile::forNewVersionOf(m_target, std::bind_front(&NewVersion::isLeftover, this)); })),
      m_temporaryName(m_newFile.path())
{
}

NewVersion::~NewVersion()
{
    if (!m_stays)
        m_newFile.discard();
}

/// The file that `fileName` leads to.
std::string NewVersion::target(const std::string& fileName, ReadOnlyFails readOnlyFails)
{
    std::string target = madeOrReported(m_reporter, fileName, [&] { return linkTarget(fileName); });
    const auto obstacle = readOnlyFails == ReadOnlyFails::AtOnce ? replaceObstacle(target) : std::nullopt;
    if (obstacle)
        reported(m_reporter, Phrase(Message::DeleteOldFile, target), [&] { throw Error(obstacle->error); });
    return target;
}

bool NewVersion::isLeftover(const std::string& path, const InputFile& file) const
{
    return isIncomplete(file, m_oldFile) || (hasSameImage(file, m_oldFile) && !(m_isSpared && m_isSpared(path)));
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
    reported(m_reporter, m_target, [&] { readBack(m_temporaryName, read); });
}

void NewVersion::write(const DocumentSave& save)
{
    if (save.way == WritingWay::Rebuild)
        rebuild(save.after);
    else
        writeWhole([&] { patch(save); });
    reported(m_reporter, m_target, [&] { compare(save); });
}

void NewVersion::rebuild(XmlDocument& document)
{
    writeWhole([&] { rebuildJpeg(document, m_oldFile, m_newFile, m_temporaryName, m_reporter); });
}

/// A change that cannot be made is a matter of the photograph, not of the temporary file.
void NewVersion::patch(const DocumentSave& save)
{
    ErrorTrap trap;
    trap.run([&] { patchJpeg(save, m_oldFile, m_newFile, m_reporter); });
    const bool isOfDisk = trap.pending() && isOfSystem(trap.error());
    reportPending(m_reporter, isOfDisk ? Phrase(Message::WriteFailed, m_temporaryName) : Phrase(m_target), trap);
    trap.raise();
}

void NewVersion::compare(const DocumentSave& save)
{
    const InputFile newFile(m_temporaryName);
    m_receipt = compareVersions(m_oldFile, newFile, m_temporaryName, save.before, save.after, save.read,
                                save.clearance.afterPicture ? ImageEnd::Marker : ImageEnd::File);
    if (save.way == WritingWay::Keep && !m_receipt.losses.empty())
        throw Error{kInvalidCall, m_receipt.losses.front(), m_receipt.lostNode};
}

void NewVersion::bringToDisk()
{
    if (!m_onDisk)
        reported(m_reporter, Phrase(Message::WriteFailed, m_temporaryName), [&] { m_newFile.sync(); });
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
    if (const auto obstacle = replaceObstacle(m_target))
        raise(*obstacle);
    ErrorTrap trap;
    trap.run([&] {
        if (!m_receipt.losses.empty()) {
            checkOldFile();
            keepOriginal();
        }
        replaceOld();
    });
    if (trap.pending() && m_original)
        deleteFile(m_receipt.originalName, *m_original); // the file that it was kept for is as it was, or not ours
    trap.raise();
}

/// What another program made of the old file in the meantime is not overwritten. The second look is the last thing
/// before the rename, as comparing contents takes time.
void NewVersion::checkOldFile() const
{
    reported(m_reporter, m_target, [&] {
        const InputFile now(m_target);
        if (!isSameFile(m_asRead, now) || InputFile(m_target).status() != now.status())
            throw fileWasChanged();
    });
}

void NewVersion::keepOriginal()
{
    m_receipt.originalName = m_target + ".original";
    reported(m_reporter, m_receipt.originalName, [&] {
        m_original = keepFile(m_target, m_receipt.originalName, std::bind_front(&NewVersion::isLeftover, this));
        m_receipt.original = m_original ? Original::Kept : Original::WasThere;
        syncFolder(folder());
    });
}

void NewVersion::replaceOld()
{
    if (const auto failure = replaceFile(m_newFile, m_target, [&] { checkOldFile(); }))
        raise(*failure);
    m_stays = true;
}

/// Reports and raises the failure to replace the old file by the complete new one, which stays.
void NewVersion::raise(const ReplaceFailure& failure)
{
    m_stays = true;
    Error error = failure.error;
    if (failure.step == ReplaceStep::Delete)
        error.description = Phrase(Message::NewVersionStays, error.description, m_temporaryName);
    const Phrase context = failure.step == ReplaceStep::Delete ? Phrase(Message::DeleteOldFile, m_target)
                                                               : Phrase(Message::RenameFile, m_temporaryName, m_target);
    ErrorReport(m_reporter, context, error);
    throw Error(error);
}

std::string NewVersion::folder() const
{
    return folderOf(m_target);
}

/// Writes the new file: its content, which `fill` writes and reports on, then what it takes from the old one.
template <class Fill> void NewVersion::writeWhole(Fill fill)
{
    const auto finish = [&] {
        m_newFile.takeAttributesFrom(m_oldFile);
        m_newFile.startSync();
    };
    fill();
    reported(m_reporter, Phrase(Message::WriteFailed, m_temporaryName), finish);
}

} // namespace ovisto
