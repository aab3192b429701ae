// SPDX-License-Identifier: MIT

#include "support/FaultyCalls.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <map>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace ovisto::test {

namespace {

// A function pointer carries no state, so there is one state for all.
struct State {
    Fault fault;
    int seen = 0;
    std::map<int, std::string> names; // of open files
    std::vector<std::string> log;
};

State state;

std::string nameOf(const char* path)
{
    const std::filesystem::path whole(path);
    if (std::filesystem::is_directory(whole))
        return ".";
    const std::string name = whole.filename();
    const std::string textMark = ".ovisto";
    return name.ends_with(textMark) ? name.substr(0, name.size() - textMark.size()) : name;
}

bool isFaulty(const std::string& call)
{
    const Fault& fault = state.fault;
    if (fault.call == kAnyCall) // one that was interrupted is not interrupted again
        return fault.error != EINTR || state.log.empty() || state.log.back() != call + " " + std::to_string(EINTR);
    return call == fault.call && (++state.seen == fault.time || fault.time == 0);
}

/// Notes a call and makes it, as the system does or as the fault has it. `size`: the bytes that it is about, if any.
template <class Real> auto noted(const std::string& call, std::size_t size, Real real) -> decltype(real(size))
{
    const Fault& fault = state.fault;
    const bool isHit = isFaulty(call);
    state.log.push_back(call);
    if (isHit && fault.meanwhile)
        fault.meanwhile();
    if (isHit && fault.error > 0) {
        state.log.back() += " " + std::to_string(fault.error);
        errno = fault.error;
        return -1;
    }
    if (isHit && fault.error == kHalf)
        size = (size + 1) / 2;
    return real(isHit && fault.error == kNothing ? 0 : size);
}

std::string callOf(const char* verb, int descriptor)
{
    return verb + (" " + state.names[descriptor]);
}

/// The call `member` of the real ones, for an open file.
template <auto member, const char* verb, class... Arguments> int notedCall(int descriptor, Arguments... arguments)
{
    return noted(callOf(verb, descriptor), 0, [&](std::size_t) { return member(descriptor, arguments...); });
}

int openNoted(const char* path, int flags, mode_t mode)
{
    const std::string name = nameOf(path);
    const std::string verb = (flags & O_CREAT) != 0 ? "create " : "open ";
    const int descriptor = noted(verb + name, 0, [&](std::size_t) { return open(path, flags, mode); });
    state.names[descriptor] = name;
    return descriptor;
}

ssize_t preadNoted(int descriptor, void* into, std::size_t size, off_t offset)
{
    return noted(callOf("pread", descriptor), size,
                 [&](std::size_t given) { return pread(descriptor, into, given, offset); });
}

ssize_t writeNoted(int descriptor, const void* from, std::size_t size)
{
    return noted(callOf("write", descriptor), size, [&](std::size_t given) { return write(descriptor, from, given); });
}

int renameNoted(const char* from, const char* to)
{
    return noted("rename " + nameOf(from) + " " + nameOf(to), 0, [&](std::size_t) { return rename(from, to); });
}

int linkNoted(const char* path, const char* secondName)
{
    return noted("link " + nameOf(path) + " " + nameOf(secondName), 0,
                 [&](std::size_t) { return link(path, secondName); });
}

int unlinkNoted(const char* path)
{
    return noted("unlink " + nameOf(path), 0, [&](std::size_t) { return unlink(path); });
}

int lstatNoted(const char* path, struct stat* status)
{
    return noted("lstat " + nameOf(path), 0, [&](std::size_t) { return lstat(path, status); });
}

int isOnDisk(int /*descriptor*/)
{
    return 0;
}

constexpr char kFstat[] = "fstat", kFlock[] = "flock", kFsync[] = "fsync", kSyncfs[] = "syncfs", kFchown[] = "fchown",
               kFchmod[] = "fchmod", kFsetxattr[] = "fsetxattr";

const SystemCalls kNoted{
    .open = openNoted,
    .pread = preadNoted,
    .write = writeNoted,
    .fstat = notedCall<fstat, kFstat>,
    .lstat = lstatNoted,
    .flock = notedCall<flock, kFlock>,
    .fsync = notedCall<isOnDisk, kFsync>,
    .syncfs = notedCall<isOnDisk, kSyncfs>,
    .fchown = notedCall<fchown, kFchown>,
    .fchmod = notedCall<fchmod, kFchmod>,
    .fsetxattr = notedCall<fsetxattr, kFsetxattr>,
    .link = linkNoted,
    .rename = renameNoted,
    .unlink = unlinkNoted,
};

} // namespace

FaultyCalls::FaultyCalls(Fault fault) : m_replaced((state = {std::move(fault), 0, {}, {}}, kNoted)) {}

FaultyCalls::~FaultyCalls() = default;

const std::vector<std::string>& FaultyCalls::log()
{
    return state.log;
}

} // namespace ovisto::test
