#pragma once

#include "common/Error.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace ovisto {

// Files as the program needs them. All functions raise an Error with one of the system numbers when the system refuses.
// Paths are bytes as the system gives them; nothing here depends on the locale.

/// The system's handle of an open file, closed with its owner.
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

/// A regular file that is open for reading at any place. Another process may change it meanwhile: a read then gives
/// what is there, or less.
class InputFile {
public:
    /// Raises kPathAccessError for what is no regular file.
    explicit InputFile(const std::string& path);

    /// Bytes in the file when it was opened.
    std::int64_t size() const { return m_size; }

    /// Reads into `into` what stands from `offset` (the first byte is 0) on, and returns how many bytes that was: fewer
    /// than asked for only where the file ends.
    std::size_t readAt(std::int64_t offset, std::span<std::uint8_t> into) const;

private:
    friend class OutputFile;
    FileHandle m_handle;
    std::int64_t m_size = 0;
};

/// Who may read a new file: its owner until it takes the permissions of the file that it replaces, or as is usual.
enum class NewFileAccess { Private, Usual };

/// A new file that is being written, from its start to its end. Its bytes are on disk after sync() only.
class OutputFile {
public:
    /// Creates `path` anew; a file of that name, left behind by an earlier save, is deleted before, unless another save
    /// is writing it (then raises kPermissionDenied).
    explicit OutputFile(const std::string& path, NewFileAccess newFileAccess = NewFileAccess::Private);

    void write(std::span<const std::uint8_t> bytes);

    /// Writes up to `length` bytes of `file` from `offset` (the first byte is 0) on, and returns how many that was:
    /// fewer only where the file ends.
    std::int64_t writeFrom(const InputFile& file, std::int64_t offset, std::int64_t length);

    /// Hands to the system what is still in the buffer, so that a full disk shows now.
    void flush();

    /// Flushes, and has the disk begin with a large file, without waiting for it: a sync() to come is then short.
    /// To be called behind the last write: it gives the buffer away.
    void startSync();

    /// Flushes and waits until the disk has it.
    void sync();

    /// The file system that the file is in.
    std::uint64_t device() const;

    /// Waits until the disk has this file and all that was written to its file system since it was created: for many
    /// files that is far quicker than for each by itself. False where the system cannot tell, or something was not
    /// written: each file is then to be synced.
    bool syncFileSystem();

    /// Gives the new file the permission bits of `old`, and its owner and extended attributes where that is allowed.
    void takeAttributesFrom(const InputFile& old);

    /// Deletes the file, which is of no use, as far as its name still stands for it.
    void discard();

private:
    void writeAll(std::string_view rest);

    std::string m_path;
    FileHandle m_handle;
    std::string m_buffer;
    std::int64_t m_written = 0; // bytes that the system has
};

/// What a file may be that is read as a whole, from its start to its end.
enum class FileKind { Regular, RegularOrPipe };

/// A whole file. A pipe, where it may be one, is waited for, and read until its other end closes it.
std::string readTextFile(const std::string& path, FileKind kind = FileKind::Regular);

/// Writes a text file as a whole: `path` names its old or its new content, never a part of it.
void writeTextFile(const std::string& path, std::string_view content);

bool fileExists(const std::string& path);

/// Whether files can be created in `folder`.
bool isFolderWritable(const std::string& folder);

/// Creates `folder` and those above it where they are missing.
void createFolders(const std::string& folder);

/// One text for all names that lead to the same file: its real path, or `path` when there is no such file.
std::string realPath(const std::string& path);

} // namespace ovisto
