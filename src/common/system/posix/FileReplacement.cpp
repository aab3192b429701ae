#include "common/system/FileReplacement.h"

#include "common/system/File.h"
#include "common/system/posix/SystemCalls.h"
#include "common/system/posix/SystemError.h"
#include "common/text/PathText.h"

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
           ((status.st_mode & kAnyWriteBit) == 0 || access(path.c_str(), W_OK) != 0);
}

} // namespace

std::optional<ReplaceFailure> replaceObstacle(const std::string& path)
{
    if (isMarkedReadOnly(path))
        return ReplaceFailure{ReplaceStep::Delete, systemError(kPermissionDenied)};
    return std::nullopt;
}

std::optional<ReplaceFailure> replaceFile(const std::string& replacement, const std::string& path)
{
    if (auto obstacle = replaceObstacle(path))
        return obstacle;
    if (systemCall(&SystemCalls::rename, replacement.c_str(), path.c_str()) != 0) {
        const int renameError = errno;
        const bool denied = renameError == EACCES || renameError == EPERM;
        return ReplaceFailure{denied ? ReplaceStep::Delete : ReplaceStep::Rename, errorOf(renameError)};
    }
    return std::nullopt;
}

// A second name for the same file costs nothing, and leaves nothing to copy wrongly. File systems without such names
// get a copy, which takes its name when it is whole.
bool keepFile(const std::string& path, const std::string& keptPath)
{
    if (systemCall(&SystemCalls::link, path.c_str(), keptPath.c_str()) == 0)
        return true;
    const int linkError = errno;
    struct stat status = {};
    if (lstat(keptPath.c_str(), &status) == 0) {
        if (!S_ISREG(status.st_mode))
            throw systemError(kPathAccessError);
        return false;
    }
    if (linkError != EPERM && linkError != EOPNOTSUPP && linkError != ENOSYS && linkError != EMLINK)
        throw errorOf(linkError);
    const std::string temporaryName = temporaryNameOf(keptPath);
    const InputFile file(path);
    OutputFile copy(temporaryName);
    ErrorTrap trap;
    trap.run([&] {
        if (copy.writeFrom(file, 0, file.size()) != file.size())
            throw systemError(kDeviceError);
        copy.takeAttributesFrom(file);
        copy.sync();
        if (const auto failure = replaceFile(temporaryName, keptPath))
            throw Error(failure->error);
    });
    if (trap.pending())
        copy.discard();
    trap.raise();
    return true;
}

void forgetKept(const std::string& keptPath)
{
    systemCall(&SystemCalls::unlink, keptPath.c_str());
}

void syncFolder(const std::string& folder)
{
    const char* name = folder.empty() ? "." : folder.c_str();
    const FileHandle handle(systemCall(&SystemCalls::open, name, O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0));
    if (handle.get() >= 0)
        systemCall(&SystemCalls::fsync, handle.get());
}

std::string linkTarget(const std::string& path)
{
    struct stat status = {};
    return lstat(path.c_str(), &status) == 0 && S_ISLNK(status.st_mode) ? realPath(path) : path;
}

} // namespace ovisto
