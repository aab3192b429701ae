// SPDX-License-Identifier: MIT

#include "common/system/File.h"

#include "common/system/FileNames.h"
#include "common/system/FileReplacement.h"
#include "common/system/NewTextFile.h"
#include "common/system/posix/SystemCalls.h"
#include "common/system/posix/SystemError.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <vector>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace ovisto {

namespace {

constexpr std::size_t kBufferSize = std::size_t{64} * 1024;

/// What the name of a text file that is not yet whole ends with, so that nobody takes it for a file of their own.
constexpr auto* kTextMark = ".ovisto";

bool isFolderMissing(const std::string& path)
{
    const std::string folder = folderOf(path);
    return !folder.empty() && access(folder.c_str(), F_OK) != 0;
}

FileHandle openFile(const std::string& path, int flags)
{
    FileHandle handle(systemCall(&SystemCalls::open, path.c_str(), flags | O_CLOEXEC, 0));
    if (handle.get() >= 0)
        return handle;
    const int openError = errno;
    if (openError == ENOENT && isFolderMissing(path))
        throw systemError(kPathNotFound);
    throw errorOf(openError);
}

struct stat statusOf(int descriptor)
{
    struct stat status = {};
    checked(systemCall(&SystemCalls::fstat, descriptor, &status));
    return status;
}

std::int64_t nanoseconds(const timespec& time)
{
    constexpr std::int64_t kPerSecond = 1'000'000'000;
    return std::int64_t{time.tv_sec} * kPerSecond + time.tv_nsec;
}

std::int64_t nanosecondsNow()
{
    const auto now = std::chrono::system_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::nanoseconds>(now).count();
}

/// Whether a file that was last changed at `time` could be changed after `now` and get the same time. The system's
/// clock for files ticks every 10 milliseconds or more often, that of some file systems every second or two.
bool isRecentAt(std::int64_t now, std::int64_t time)
{
    constexpr std::int64_t kTick = 20'000'000;
    constexpr std::int64_t kSecond = 1'000'000'000;
    const bool hasWholeSeconds = time % kSecond == 0;
    return time > now - (hasWholeSeconds ? 2 * kSecond : kTick);
}

FileStatus fileStatus(const struct stat& status, std::int64_t now)
{
    FileStatus result{.device = status.st_dev,
                      .inode = status.st_ino,
                      .size = status.st_size,
                      .modified = nanoseconds(status.st_mtim),
                      .changed = nanoseconds(status.st_ctim)};
    result.isRecent = isRecentAt(now, std::max(result.modified, result.changed));
    return result;
}

enum class Lock {
    Taken,
    HeldByAnother,
    Unknown ///< the file system has no locks, or none is to be had: nobody can say whether another is writing the file
};

Lock lock(int descriptor)
{
    if (systemCall(&SystemCalls::flock, descriptor, LOCK_EX | LOCK_NB) == 0)
        return Lock::Taken;
    return errno == EWOULDBLOCK ? Lock::HeldByAnother : Lock::Unknown;
}

/// Whether `path` names the file that has this status.
bool names(const std::string& path, const struct stat& opened)
{
    struct stat named = {};
    return systemCall(&SystemCalls::lstat, path.c_str(), &named) == 0 && named.st_dev == opened.st_dev &&
           named.st_ino == opened.st_ino;
}

/// Whether a file may still have the content that it had when it had the status `before`.
bool isUnchanged(const struct stat& before, const struct stat& now)
{
    return before.st_size == now.st_size && before.st_mtim.tv_sec == now.st_mtim.tv_sec &&
           before.st_mtim.tv_nsec == now.st_mtim.tv_nsec;
}

constexpr int kReadItself = O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK; // not what a link leads to

constexpr mode_t accessMode(NewFileAccess access)
{
    constexpr mode_t kOwner = S_IRUSR | S_IWUSR;
    constexpr mode_t kEveryone = kOwner | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;
    return access == NewFileAccess::Private ? kOwner : kEveryone;
}

/// Creates and locks `path`. Nothing when a file has that name, or gets it in the meantime: another process may take
/// the new file for a leftover between its creation and its locking. The creation decides who has the name; where there
/// are no locks, nobody deletes it.
FileHandle created(const std::string& path, NewFileAccess access)
{
    constexpr int kNewOnly = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    FileHandle handle(systemCall(&SystemCalls::open, path.c_str(), kNewOnly, accessMode(access)));
    const int openError = errno;
    if (handle.get() < 0 && openError == ENOENT && isFolderMissing(path))
        throw Error{kPathNotFound, {Message::NoSuchFolder, folderOf(path)}};
    if (handle.get() < 0 && openError != EEXIST)
        throw errorOf(openError);
    if (handle.get() < 0 || lock(handle.get()) == Lock::HeldByAnother || !names(path, statusOf(handle.get())))
        return {};
    return handle;
}

/// The same after deleting a file of that name, unless another OutputFile is writing it or it cannot be opened.
FileHandle createdAnew(const std::string& path, NewFileAccess access)
{
    const FileHandle old(systemCall(&SystemCalls::open, path.c_str(), kReadItself, 0));
    if (old.get() >= 0 && lock(old.get()) != Lock::HeldByAnother && names(path, statusOf(old.get())))
        systemCall(&SystemCalls::unlink, path.c_str());
    return created(path, access);
}

/// Gives a file the owner and group of another one, as far as the system allows it. Returns whether it has the group.
bool takeOwner(int descriptor, const struct stat& other)
{
    constexpr auto kSame = static_cast<uid_t>(-1);
    // Giving a file away is for the administrator; giving it to one's group is for all its members.
    return systemCall(&SystemCalls::fchown, descriptor, other.st_uid, other.st_gid) == 0 ||
           systemCall(&SystemCalls::fchown, descriptor, kSame, other.st_gid) == 0 ||
           statusOf(descriptor).st_gid == other.st_gid;
}

constexpr mode_t kPermissionBits = S_IRWXU | S_IRWXG | S_IRWXO;

/// The permissions of a file for one that has another group: its members were anyone before.
mode_t permissionsForOtherGroup(mode_t mode)
{
    return mode & (S_IRWXU | (mode & S_IRWXO) << 3 | S_IRWXO);
}

/// The names in a list of extended attributes, each ended by a zero byte.
std::vector<const char*> attributeNames(const std::vector<char>& list)
{
    std::vector<const char*> names;
    for (const char* name = list.data(); name < list.data() + list.size(); name += std::string_view(name).size() + 1)
        names.push_back(name);
    return names;
}

/// Copies what the system allows. Attributes that cannot be set here (another owner's, a file system without them) are
/// left out, as copying programs do.
void copyExtendedAttributes(int from, int to, bool hasGroup)
{
    const auto listSize = flistxattr(from, nullptr, 0);
    if (listSize <= 0)
        return;
    std::vector<char> list(static_cast<std::size_t>(listSize));
    if (flistxattr(from, list.data(), list.size()) != listSize)
        return;
    for (const char* name : attributeNames(list)) {
        if (!hasGroup && std::string_view(name) == "system.posix_acl_access") // says what the group may do
            continue;
        const auto size = fgetxattr(from, name, nullptr, 0);
        if (size < 0)
            continue;
        std::vector<char> value(static_cast<std::size_t>(size));
        if (fgetxattr(from, name, value.data(), value.size()) == size)
            systemCall(&SystemCalls::fsetxattr, to, name, value.data(), value.size(), 0);
    }
}

bool isPipe(const std::string& path)
{
    struct stat status = {};
    return stat(path.c_str(), &status) == 0 && S_ISFIFO(status.st_mode);
}

std::string pipeText(const std::string& path)
{
    const FileHandle handle = openFile(path, O_RDONLY);
    std::string text;
    for (;;) {
        const std::size_t size = text.size();
        text.resize(size + kBufferSize);
        const auto count = checked(uninterrupted([&] { return read(handle.get(), text.data() + size, kBufferSize); }));
        text.resize(size + static_cast<std::size_t>(count));
        if (count == 0)
            return text;
    }
}

/// Gives `file` what it takes from the file at `path`, if there is one. One that cannot be looked at is there.
void takeAttributesOfOld(OutputFile& file, const std::string& path)
{
    ErrorTrap trap;
    trap.run([&] { file.takeAttributesFrom(InputFile(path)); });
    if (trap.pending() && trap.error().number != kFileNotFound)
        trap.raise();
}

} // namespace

FileHandle& FileHandle::operator=(FileHandle&& other) noexcept
{
    std::swap(m_descriptor, other.m_descriptor);
    return *this;
}

FileHandle::~FileHandle()
{
    if (m_descriptor >= 0)
        close(m_descriptor);
}

// O_NONBLOCK: a pipe that nobody writes to must not keep the program waiting.
InputFile::InputFile(const std::string& path) : InputFile(openFile(path, O_RDONLY | O_NONBLOCK)) {}

InputFile::InputFile(FileHandle handle) : m_handle(std::move(handle))
{
    const std::int64_t now = nanosecondsNow();
    const struct stat status = statusOf(m_handle.get());
    if (!S_ISREG(status.st_mode))
        throw Error{kPathAccessError, S_ISDIR(status.st_mode) ? Message::IsAFolder : Message::IsNotAFile};
    m_status = fileStatus(status, now);
}

std::size_t InputFile::readAt(std::int64_t offset, std::span<std::uint8_t> into) const
{
    std::size_t done = 0;
    while (done < into.size()) {
        const auto count =
            checked(systemCall(&SystemCalls::pread, m_handle.get(), into.data() + done, into.size() - done,
                               static_cast<off_t>(offset + static_cast<std::int64_t>(done))));
        if (count == 0)
            break;
        done += static_cast<std::size_t>(count);
    }
    return done;
}

OutputFile::OutputFile(std::string path, FileHandle handle) : m_path(std::move(path)), m_handle(std::move(handle))
{
    if (m_handle.get() < 0)
        throw systemError(kPermissionDenied);
    m_buffer.reserve(kBufferSize);
}

OutputFile::OutputFile(const std::string& path, NewFileAccess newFileAccess)
    : OutputFile(path, createdAnew(path, newFileAccess))
{
}

OutputFile OutputFile::underFreeName(const std::function<std::string(int number)>& nameOf,
                                     const LeftoverTest& isLeftover, NewFileAccess newFileAccess)
{
    constexpr int kTries = 8; // others may take a name that has just become free
    for (int number = 1; number <= kTemporaryNames; ++number) {
        const std::string path = nameOf(number);
        Leftover leftover = Leftover::Gone;
        for (int i = 0; i < kTries && leftover == Leftover::Gone; ++i) {
            leftover = deleteLeftover(path, isLeftover);
            if (leftover == Leftover::BeingWritten)
                throw systemError(kPermissionDenied);
            if (FileHandle handle = created(path, newFileAccess); handle.get() >= 0)
                return {path, std::move(handle)};
        }
    }
    throw systemError(kPermissionDenied);
}

OutputFile OutputFile::forNewVersionOf(const std::string& path, const LeftoverTest& isLeftover,
                                       NewFileAccess newFileAccess)
{
    return underFreeName([&](int number) { return temporaryName(path, number); }, isLeftover, newFileAccess);
}

OutputFile::Leftover OutputFile::deleteLeftover(const std::string& path, const LeftoverTest& isLeftover)
{
    FileHandle handle(systemCall(&SystemCalls::open, path.c_str(), kReadItself, 0));
    if (handle.get() < 0)
        return errno == ENOENT ? Leftover::Gone : Leftover::Stays;
    Leftover result = Leftover::Stays;
    ErrorTrap trap; // a file of which not enough is known stays
    trap.run([&] {
        const InputFile file(std::move(handle));
        const struct stat status = statusOf(file.m_handle.get());
        if (!isLeftover(path, file))
            return;
        const Lock locked = lock(file.m_handle.get());
        if (locked == Lock::HeldByAnother)
            result = Leftover::BeingWritten;
        const struct stat now = statusOf(file.m_handle.get());
        if (locked == Lock::Taken && isUnchanged(status, now) && names(path, now) &&
            systemCall(&SystemCalls::unlink, path.c_str()) == 0)
            result = Leftover::Gone;
    });
    return result;
}

bool OutputFile::hasItsName() const
{
    return names(m_path, statusOf(m_handle.get()));
}

void OutputFile::write(std::span<const std::uint8_t> bytes)
{
    const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    if (text.size() >= kBufferSize) {
        flush();
        writeAll(text);
        return;
    }
    m_buffer.append(text);
    if (m_buffer.size() >= kBufferSize)
        flush();
}

std::int64_t OutputFile::writeFrom(const InputFile& file, std::int64_t offset, std::int64_t length)
{
    std::int64_t done = 0;
    for (;;) {
        if (m_buffer.size() >= kBufferSize)
            flush();
        const std::size_t start = m_buffer.size();
        const auto size =
            static_cast<std::size_t>(std::min(length - done, static_cast<std::int64_t>(kBufferSize - start)));
        m_buffer.resize(start + size);
        const std::size_t read =
            file.readAt(offset + done, {reinterpret_cast<std::uint8_t*>(m_buffer.data()) + start, size});
        m_buffer.resize(start + read);
        done += static_cast<std::int64_t>(read);
        if (read < size || done == length)
            return done;
    }
}

void OutputFile::flush()
{
    // What could not be written is not tried again: the file is spoilt, and the error says so once.
    std::string buffer = std::exchange(m_buffer, {});
    writeAll(buffer);
    buffer.clear();
    m_buffer = std::move(buffer);
}

void OutputFile::writeAll(std::string_view rest)
{
    while (!rest.empty()) {
        const auto count = checked(systemCall(&SystemCalls::write, m_handle.get(), rest.data(), rest.size()));
        // A full disk may first show as a short count, then as an error, or as nothing written at all.
        if (count == 0)
            throw systemError(kDiskFull);
        rest.remove_prefix(static_cast<std::size_t>(count));
        m_written += count;
    }
}

void OutputFile::startSync()
{
    flush();
    std::string().swap(m_buffer); // many files may wait for their sync
#ifdef SYNC_FILE_RANGE_WRITE
    // Only a hint: where the file system ignores it, sync() has all the work. Small files cost the disk less when it
    // gets many at once.
    constexpr std::int64_t kWorthIt = std::int64_t{1} << 20;
    if (m_written >= kWorthIt)
        sync_file_range(m_handle.get(), 0, 0, SYNC_FILE_RANGE_WRITE);
#endif
}

void OutputFile::sync()
{
    flush();
    checked(systemCall(&SystemCalls::fsync, m_handle.get()));
}

std::uint64_t OutputFile::device() const
{
    return statusOf(m_handle.get()).st_dev;
}

bool OutputFile::syncFileSystem()
{
    flush();
    // It reports everything that failed since the file was opened.
    return systemCall(&SystemCalls::syncfs, m_handle.get()) == 0;
}

void OutputFile::takeAttributesFrom(const InputFile& old)
{
    const struct stat status = statusOf(old.m_handle.get());
    const int descriptor = m_handle.get();
    const bool hasGroup = takeOwner(descriptor, status);
    copyExtendedAttributes(old.m_handle.get(), descriptor, hasGroup);
    const mode_t mode = status.st_mode & kPermissionBits;
    const mode_t permissions = hasGroup ? mode : permissionsForOtherGroup(mode);
    // File systems without permission bits of their own refuse to set them, and show the same ones for every file.
    if (systemCall(&SystemCalls::fchmod, descriptor, permissions) != 0 &&
        (statusOf(descriptor).st_mode & kPermissionBits) != permissions)
        throw systemError(kPermissionDenied);
}

void OutputFile::discard()
{
    // The file is locked: no other save takes its name in between.
    struct stat status = {};
    if (systemCall(&SystemCalls::fstat, m_handle.get(), &status) == 0 && names(m_path, status))
        systemCall(&SystemCalls::unlink, m_path.c_str());
}

std::string readTextFile(const std::string& path, FileKind kind)
{
    if (kind == FileKind::RegularOrPipe && isPipe(path))
        return pipeText(path);
    const InputFile file(path);
    std::string content(static_cast<std::size_t>(file.size()), '\0');
    content.resize(file.readAt(0, {reinterpret_cast<std::uint8_t*>(content.data()), content.size()}));
    return content;
}

NewTextFile::NewTextFile(const std::string& path)
    : m_target(linkTarget(path)),
      m_file(OutputFile::forNewVersionOf(
          m_target + kTextMark, [](const std::string& /*path*/, const InputFile& /*file*/) { return true; },
          NewFileAccess::Usual))
{
    ErrorTrap trap;
    trap.run([&] {
        takeAttributesOfOld(m_file, m_target);
        if (const auto failure = replaceObstacle(m_target))
            throw Error(failure->error);
    });
    if (trap.pending())
        m_file.discard();
    trap.raise();
}

NewTextFile::~NewTextFile()
{
    if (!m_isInPlace)
        m_file.discard();
}

void NewTextFile::write(std::string_view content)
{
    m_file.write({reinterpret_cast<const std::uint8_t*>(content.data()), content.size()});
    m_file.sync();
    if (const auto failure = replaceFile(m_file, m_target))
        throw Error(failure->error);
    m_isInPlace = true;
    syncFolder(folderOf(m_target));
}

void writeTextFile(const std::string& path, std::string_view content)
{
    NewTextFile(path).write(content);
}

bool fileExists(const std::string& path)
{
    return access(path.c_str(), F_OK) == 0;
}

bool isFolderWritable(const std::string& folder)
{
    return access(folder.c_str(), W_OK | X_OK) == 0;
}

void createFolders(const std::string& folder)
{
    std::error_code status;
    std::filesystem::create_directories(folder, status);
    if (status)
        throw errorOf(status.value());
}

std::optional<std::string> resolvedPath(const std::string& path)
{
    struct Free {
        void operator()(char* text) const { std::free(text); }
    };
    const std::unique_ptr<char, Free> resolved(realpath(path.c_str(), nullptr));
    return resolved ? std::optional<std::string>(resolved.get()) : std::nullopt;
}

std::string realPath(const std::string& path)
{
    return resolvedPath(path).value_or(path);
}

} // namespace ovisto
