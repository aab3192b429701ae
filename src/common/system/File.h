#pragma once

#include "common/Error.h"

#include <cstddef>
#include <cstdint>
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

/// What the system says of a file at one moment. Times are in nanoseconds.
struct FileStatus {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::int64_t size = 0;
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
    FileHandle m_handle;
    FileStatus m_status;
};

/// Who may read a new file: only its owner, until it takes the permissions of the file that it replaces; or whoever
/// the user lets read new files.
enum class NewFileAccess { Private, Usual };

/// A new file that is written from start to end. Only sync() makes sure that its bytes are on disk.
class OutputFile {
public:
    /// Creates `path`. Deletes a file of that name that an earlier save left; raises kPermissionDenied when another
    /// save is writing it.
    explicit OutputFile(const std::string& path, NewFileAccess newFileAccess = NewFileAccess::Private);

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

    /// Gives the new file the permission bits of `old`, and its owner and extended attributes where the system allows
    /// it.
    void takeAttributesFrom(const InputFile& old);

    /// Deletes the file, unless its name means another one by now.
    void discard();

private:
    void writeAll(std::string_view rest);

    std::string m_path;
    FileHandle m_handle;
    std::string m_buffer;
    std::int64_t m_written = 0; // bytes that the system has
};

/// What a file may be that is read as a whole.
enum class FileKind { Regular, RegularOrPipe };

/// Reads a whole file; a pipe, where it may be one, until its other end closes it.
std::string readTextFile(const std::string& path, FileKind kind = FileKind::Regular);

/// Writes a whole text file: at every moment `path` has its old or its new content, never a part of it.
void writeTextFile(const std::string& path, std::string_view content);

bool fileExists(const std::string& path);

/// Whether files can be created in `folder`.
bool isFolderWritable(const std::string& folder);

/// Creates `folder` and any missing folders above it.
void createFolders(const std::string& folder);

/// The same text for all names that lead to the same file: its real path, or `path` when there is no such file.
std::string realPath(const std::string& path);

} // namespace ovisto
