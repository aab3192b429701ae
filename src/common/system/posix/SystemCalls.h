// SPDX-License-Identifier: MIT

#pragma once

#include <cerrno>
#include <cstddef>
#include <type_traits>

#include <sys/types.h>

struct stat;

namespace ovisto {

/// The system calls that saving a file depends on, so that a test can make one of them fail. There is no other layer
/// between the program and the file system.
struct SystemCalls {
    int (*open)(const char* path, int flags, mode_t mode);
    ssize_t (*pread)(int descriptor, void* into, std::size_t size, off_t offset);
    ssize_t (*write)(int descriptor, const void* from, std::size_t size);
    int (*fstat)(int descriptor, struct stat* status);
    int (*lstat)(const char* path, struct stat* status);
    int (*flock)(int descriptor, int operation);
    int (*fsync)(int descriptor);
    int (*syncfs)(int descriptor); ///< fails where the platform has none
    int (*fchown)(int descriptor, uid_t owner, gid_t group);
    int (*fchmod)(int descriptor, mode_t mode);
    int (*fsetxattr)(int descriptor, const char* name, const void* value, std::size_t size, int flags);
    int (*link)(const char* path, const char* secondName);
    int (*rename)(const char* from, const char* to);
    int (*unlink)(const char* path);
};

/// The calls in force: the system's own, except while a ReplacedSystemCalls exists.
const SystemCalls& systemCalls();

/// Puts other calls in force for as long as it lives, in all threads. For tests.
class ReplacedSystemCalls {
public:
    /// `calls` must outlive the object.
    explicit ReplacedSystemCalls(const SystemCalls& calls);
    ReplacedSystemCalls(const ReplacedSystemCalls&) = delete;
    ReplacedSystemCalls& operator=(const ReplacedSystemCalls&) = delete;
    ~ReplacedSystemCalls();

private:
    const SystemCalls& m_before;
};

/// Repeats a call that a signal interrupted.
template <class Call> auto uninterrupted(Call call)
{
    for (;;) {
        const auto result = call();
        if (result >= 0 || errno != EINTR)
            return result;
    }
}

/// Makes one of the calls in force, and repeats it if a signal interrupts it: systemCall(&SystemCalls::fsync, file).
template <class Result, class... Parameters>
Result systemCall(Result (*SystemCalls::*call)(Parameters...), std::type_identity_t<Parameters>... arguments)
{
    return uninterrupted([&] { return (systemCalls().*call)(arguments...); });
}

} // namespace ovisto
