// SPDX-License-Identifier: MIT

#include "common/system/FileListing.h"

#include "common/system/posix/SystemError.h"
#include "common/text/CaseFolding.h"

#include <algorithm>
#include <cerrno>
#include <memory>

#include <dirent.h>
#include <linux/magic.h>
#include <sys/stat.h>
#include <sys/statfs.h>

namespace ovisto {

namespace {

struct CloseFolder {
    void operator()(DIR* folder) const { closedir(folder); }
};

enum class Kind { File, Folder, Other };

Kind kindOf(mode_t mode)
{
    return S_ISREG(mode) ? Kind::File : S_ISDIR(mode) ? Kind::Folder : Kind::Other;
}

/// Most systems return the kind with the name, but for a link not the kind of what it leads to.
Kind kindOf(int folder, const dirent& entry)
{
    if (entry.d_type != DT_UNKNOWN && entry.d_type != DT_LNK)
        return kindOf(static_cast<mode_t>(DTTOIF(entry.d_type)));
    struct stat status = {};
    return fstatat(folder, entry.d_name, &status, 0) == 0 ? kindOf(status.st_mode) : Kind::Other;
}

/// The file system of /dev says that it holds temporary files, as others do that people use.
bool isThatOfDevices(const struct stat& folder)
{
    struct stat devices = {};
    struct stat root = {};
    return stat("/dev", &devices) == 0 && stat("/", &root) == 0 && folder.st_dev == devices.st_dev &&
           folder.st_dev != root.st_dev;
}

bool showsSystem(int folder, const struct stat& status)
{
    struct statfs system = {};
    if (fstatfs(folder, &system) != 0)
        return false;
    return system.f_type == PROC_SUPER_MAGIC || system.f_type == SYSFS_MAGIC ||
           (system.f_type == TMPFS_MAGIC && isThatOfDevices(status));
}

void sortAsPeopleDo(std::vector<std::string>& names)
{
    std::vector<std::pair<std::u32string, std::string>> keyed;
    keyed.reserve(names.size());
    for (std::string& name : names)
        keyed.emplace_back(foldedCase(name), std::move(name));
    std::ranges::sort(keyed);
    std::ranges::transform(keyed, names.begin(), [](auto& pair) { return std::move(pair.second); });
}

} // namespace

FolderListing listFolder(const std::string& folder)
{
    const std::unique_ptr<DIR, CloseFolder> opened(opendir(folder.c_str()));
    struct stat status = {};
    if (!opened || fstat(dirfd(opened.get()), &status) != 0)
        throw errorOf(errno);
    FolderListing listing{.identity = {status.st_dev, status.st_ino},
                          .showsSystem = showsSystem(dirfd(opened.get()), status),
                          .files = {},
                          .folders = {}};
    for (;;) {
        errno = 0;
        const dirent* entry = readdir(opened.get());
        if (entry == nullptr)
            break;
        if (entry->d_name[0] == '.') // hidden, or the folder itself, or the one above
            continue;
        const Kind kind = kindOf(dirfd(opened.get()), *entry);
        if (kind == Kind::File)
            listing.files.emplace_back(entry->d_name);
        else if (kind == Kind::Folder)
            listing.folders.emplace_back(entry->d_name);
    }
    if (errno != 0)
        throw errorOf(errno);
    sortAsPeopleDo(listing.files);
    sortAsPeopleDo(listing.folders);
    return listing;
}

std::string pathIn(const std::string& folder, std::string_view name)
{
    return std::string(folder).append(folder.ends_with('/') ? "" : "/").append(name);
}

} // namespace ovisto
