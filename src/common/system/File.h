// SPDX-License-Identifier: MIT

#pragma once

#include "common/Error.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace ovisto {

// Files as the program needs them. What the system refuses raises an Error with one of the system numbers. Paths are
// bytes as the system gives them; nothing here depends on the locale.

/// The system's handle of an open file; closes it at the end of its life.
class FileHandle {
public:
    FileHandle() = default;
    explicit FileHandle(int descriptor) : m_descriptor(descriptor) {}
    FileHandle(FileHandle&& other) noexcept : m_descriptor(std::exchange(other.m_descriptor, -1)) {}
    FileHandle& operator=(FileHandle&& other) noexcept;
    ~FileHandle();

    int get() const { return m_descriptor; }

private:
    int m_descriptor = -1;
};

/// What the system says of a file at one moment. Times are in nanoseconds since the beginning of 1970, UTC.
struct FileStatus {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::int64_t size = 0;     ///< in bytes
    std::int64_t modified = 0; ///< when its content was last changed
    std::int64_t changed = 0;  ///< when anything about it was
    /// So short before that one more change could have got the same times: the clock of a file system ticks slowly.
    bool isRecent = false;

    /// Whether it is the same file, and nothing about it was changed.
    bool operator==(const FileStatus& other) const
    {
        return device == other.device && inode == other.inode && size == other.size && modified == other.modified &&
               changed == other.changed;
    }
};

/// A regular file that is open for reading at any place. Another process may change it in the meantime: a read then
/// returns what is there, or less.
class InputFile {
public:
    /// Raises kPathAccessError for what is not a regular file.
    explicit InputFile(const std::string& path);

    /// The size of the file, in bytes, when it was opened.
    std::int64_t size() const { return m_status.size; }

    /// What the system said of the file when it was opened.
    const FileStatus& status() const { return m_status; }

    /// Fills `into` with the bytes from `offset` on (the first byte is 0) and returns their number, which is smaller
    /// than asked for only at the end of the file.
    std::size_t readAt(std::int64_t offset, std::span<std::uint8_t> into) const;

private:
    friend class OutputFile;
    explicit InputFile(FileHandle handle);

    FileHandle m_handle;
    FileStatus m_status;
};

/// Who may read a new file: only its owner, until it takes the permissions of the file that it replaces; or whoever
/// the user lets read new files.
enum class NewFileAccess { Private, Usual };

/// Whether the file at `path`, opened as `file`, was left by work that did not come to its end, and nobody needs it.
using LeftoverTest = std::function<bool(const std::string& path, const InputFile& file)>;

/// A new file that is written from start to end. It is locked while the object lives, where the file system has locks.
/// Only sync() makes sure that its bytes are on disk.
class OutputFile {
public:
    /// Creates `path`. A file of that name is deleted before, but raises kPermissionDenied when another OutputFile is
    /// writing it.
    explicit OutputFile(const std::string& path, NewFileAccess newFileAccess = NewFileAccess::Private);

    /// Creates a file under the first name that no other file has: nameOf(1), nameOf(2) and so on up to
    /// kTemporaryNames. Leftovers of these names are deleted. Raises kPermissionDenied when all names are taken, or
    /// when another OutputFile is writing what would be a leftover: then the same work is being done elsewhere.
    static OutputFile underFreeName(const std::function<std::string(int number)>& nameOf,
                                    const LeftoverTest& isLeftover,
                                    NewFileAccess newFileAccess = NewFileAccess::Private);

    /// The same with the temporary names of the file `path`, which it is to replace.
    static OutputFile forNewVersionOf(const std::string& path, const LeftoverTest& isLeftover,
                                      NewFileAccess newFileAccess = NewFileAccess::Private);

    /// What became of a file that may be a leftover.
    enum class Leftover { Gone, Stays, BeingWritten };

    /// Deletes the regular file `path` if it is known that `isLeftover` and that nobody is writing it: it could be
    /// opened and locked, and still has that name.
    static Leftover deleteLeftover(const std::string& path, const LeftoverTest& isLeftover);

    const std::string& path() const { return m_path; }

    /// Whether path() still leads to this file: another program may have moved or replaced it.
    bool hasItsName() const;

    void write(std::span<const std::uint8_t> bytes);

    /// Writes up to `length` bytes of `file` from `offset` on (the first byte is 0) and returns their number, which is
    /// smaller only at the end of `file`.
    std::int64_t writeFrom(const InputFile& file, std::int64_t offset, std::int64_t length);

    /// Hands the buffered bytes to the system, so that a full disk shows now.
    void flush();

    /// Flushes, and has the disk begin with a large file without waiting for it, which shortens a later sync(). Call
    /// after the last write; it releases the buffer.
    void startSync();

    /// Flushes, and waits until the file is on disk.
    void sync();

    /// The file system that the file is in.
    std::uint64_t device() const;

    /// Waits until the disk has this file and everything written to its file system since the file was created, which
    /// is far quicker than to sync many files one by one. False when something was not written or the system cannot
    /// say: then sync each file.
    bool syncFileSystem();

    /// Gives the new file the permission bits of `old`, and its owner, group and extended attributes where the system
    /// allows it. A group that is not that of `old` may do no more than everyone.
    void takeAttributesFrom(const InputFile& old);

    /// Deletes the file, unless its name means another one by now.
    void discard();

private:
    OutputFile(std::string path, FileHandle handle);
    void writeAll(std::string_view rest);

    std::string m_path;
    FileHandle m_handle;
    std::string m_buffer;
    std::int64_t m_written = 0; // bytes that the system has
};

/// What a file may be that is read as a whole.
enum class FileKind { Regular, RegularOrPipe };

/// Reads the bytes of a whole file, whatever their encoding; a pipe, where it may be one, until its other end closes
/// it.
std::string readTextFile(const std::string& path, FileKind kind = FileKind::Regular);

/// Writes a whole text file: at every moment `path` has its old or its new content, never a part of it.
void writeTextFile(const std::string& path, std::string_view content);

bool fileExists(const std::string& path);

/// Whether files can be created in `folder`.
bool isFolderWritable(const std::string& folder);

/// Creates `folder` and any missing folders above it.
void createFolders(const std::string& folder);

/// The same text for all names that lead to the same file; nothing if it is not there or cannot be found out.
std::optional<std::string> resolvedPath(const std::string& path);

/// The same, but `path` itself instead of nothing.
std::string realPath(const std::string& path);

} // namespace ovisto
