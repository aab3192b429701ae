// SPDX-License-Identifier: MIT

#include "common/system/FileReplacement.h"

#include "common/system/File.h"
#include "common/system/posix/SystemCalls.h"
#include "common/system/posix/SystemError.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ovisto {

namespace {

bool isMarkedReadOnly(const std::string& path)
{
    constexpr mode_t kAnyWriteBit = S_IWUSR | S_IWGRP | S_IWOTH;
    struct stat status = {};
    return stat(path.c_str(), &status) == 0 &&
           ((status.st_mode & kAnyWriteBit) == 0 || (access(path.c_str(), W_OK) != 0 && errno != ENOENT));
}

FileId idOf(const struct stat& status)
{
    return {status.st_dev, status.st_ino};
}

} // namespace

std::optional<ReplaceFailure> replaceObstacle(const std::string& path)
{
    if (isMarkedReadOnly(path))
        return ReplaceFailure{ReplaceStep::Delete, systemError(kPermissionDenied)};
    return std::nullopt;
}

std::optional<ReplaceFailure> replaceFile(const OutputFile& replacement, const std::string& path,
                                          const std::function<void()>& lastLook)
{
    if (auto obstacle = replaceObstacle(path))
        return obstacle;
    ErrorTrap trap;
    trap.run([&] {
        if (!replacement.hasItsName())
            throw Error{kPathAccessError, Message::TemporaryFileGone};
    });
    if (trap.pending())
        return ReplaceFailure{ReplaceStep::Rename, trap.take()};
    if (lastLook)
        lastLook();
    if (systemCall(&SystemCalls::rename, replacement.path().c_str(), path.c_str()) != 0) {
        const int renameError = errno;
        const bool denied = renameError == EACCES || renameError == EPERM;
        return ReplaceFailure{denied ? ReplaceStep::Delete : ReplaceStep::Rename, errorOf(renameError)};
    }
    return std::nullopt;
}

// A second name for the same file costs nothing, and leaves nothing to copy wrongly. File systems without such names
// get a copy, which takes its name when it is whole.
std::optional<FileId> keepFile(const std::string& path, const std::string& keptPath, const LeftoverTest& isLeftover)
{
    struct stat status = {};
    if (systemCall(&SystemCalls::link, path.c_str(), keptPath.c_str()) == 0) {
        // Another program may have put another file there just before, so the new name says which file it is.
        if (systemCall(&SystemCalls::lstat, keptPath.c_str(), &status) == 0)
            return idOf(status);
        const int statusError = errno;
        systemCall(&SystemCalls::unlink, keptPath.c_str());
        throw errorOf(statusError);
    }
    const int linkError = errno;
    if (systemCall(&SystemCalls::lstat, keptPath.c_str(), &status) == 0) {
        if (!S_ISREG(status.st_mode))
            throw systemError(kPathAccessError);
        return std::nullopt;
    }
    if (linkError != EPERM && linkError != EOPNOTSUPP && linkError != ENOSYS && linkError != EMLINK)
        throw errorOf(linkError);
    const InputFile file(path);
    OutputFile copy = OutputFile::forNewVersionOf(keptPath, isLeftover);
    ErrorTrap trap;
    trap.run([&] {
        if (copy.writeFrom(file, 0, file.size()) != file.size())
            throw systemError(kDeviceError);
        copy.takeAttributesFrom(file);
        copy.sync();
        checked(systemCall(&SystemCalls::lstat, copy.path().c_str(), &status));
        if (const auto failure = replaceFile(copy, keptPath))
            throw Error(failure->error);
    });
    if (trap.pending())
        copy.discard();
    trap.raise();
    return idOf(status);
}

void deleteFile(const std::string& path, const FileId& identity)
{
    struct stat status = {};
    if (systemCall(&SystemCalls::lstat, path.c_str(), &status) == 0 && idOf(status) == identity)
        systemCall(&SystemCalls::unlink, path.c_str());
}

void syncFolder(const std::string& folder)
{
    const char* name = folder.empty() ? "." : folder.c_str();
    const FileHandle handle(systemCall(&SystemCalls::open, name, O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0));
    if (handle.get() >= 0 && systemCall(&SystemCalls::fsync, handle.get()) == 0)
        return;
    const int syncError = errno;
    // Some file systems sync no folders, and say so.
    if (handle.get() >= 0 && (syncError == EINVAL || syncError == EBADF || syncError == EOPNOTSUPP))
        return;
    const Error reason = errorOf(syncError);
    throw Error{reason.number, {Message::NotKnownOnDisk, reason.description}};
}

std::string linkTarget(const std::string& path)
{
    struct stat status = {};
    if (systemCall(&SystemCalls::lstat, path.c_str(), &status) != 0) {
        if (errno == ENOENT)
            return path;
        throw errorOf(errno);
    }
    if (!S_ISLNK(status.st_mode))
        return path;
    const auto target = resolvedPath(path);
    if (!target)
        throw errorOf(errno);
    return *target;
}

} // namespace ovisto
