// SPDX-License-Identifier: MIT

#include "common/system/posix/SystemCalls.h"

#include <atomic>
#include <cstdio>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace ovisto {

namespace {

int syncFileSystem(int descriptor)
{
#ifdef __linux__
    return ::syncfs(descriptor);
#else
    static_cast<void>(descriptor);
    errno = ENOSYS;
    return -1;
#endif
}

constexpr SystemCalls kOfTheSystem{
    .open = [](const char* path, int flags, mode_t mode) { return ::open(path, flags, mode); },
    .pread = ::pread,
    .write = ::write,
    .fstat = ::fstat,
    .lstat = ::lstat,
    .flock = ::flock,
    .fsync = ::fsync,
    .syncfs = syncFileSystem,
    .fchown = ::fchown,
    .fchmod = ::fchmod,
    .fsetxattr = ::fsetxattr,
    .link = ::link,
    .rename = ::rename,
    .unlink = ::unlink,
};

constinit std::atomic<const SystemCalls*> inForce = &kOfTheSystem;

} // namespace

const SystemCalls& systemCalls()
{
    return *inForce.load(std::memory_order_acquire);
}

ReplacedSystemCalls::ReplacedSystemCalls(const SystemCalls& calls) : m_before(*inForce.exchange(&calls)) {}

ReplacedSystemCalls::~ReplacedSystemCalls()
{
    inForce = &m_before;
}

} // namespace ovisto
