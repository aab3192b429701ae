// SPDX-License-Identifier: MIT

#pragma once

#include "common/Error.h"
#include "common/system/File.h"
#include "jpeg/FilePosition.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace ovisto {

/// How many bytes of text a translation of a file of `fileSize` bytes may produce before reads fail: enough for any
/// file that says each thing once, and a bound for one whose directories all point at the same bytes.
constexpr std::int64_t textLimit(std::int64_t fileSize)
{
    return std::int64_t{8} * 1024 * 1024 + 8 * fileSize;
}

/// Reads fields at any position of a JPEG file. Bytes past the end of the file read as zeros. Texts are returned as
/// UTF-8; each byte of the file is one character of the code page. Raises kInvalidCall for an impossible length,
/// kOutOfMemory when textLimit() is reached, and kDeviceError when the disk fails.
class ByteReader {
public:
    /// `file` must outlive the reader.
    explicit ByteReader(const InputFile& file);

    /// True if the least significant byte comes first ("II"); false for the most significant one ("MM", JPEG markers).
    bool littleEndian = false;

    std::uint8_t ReadByte(FilePos pointer);
    /// 16 bits, unsigned.
    std::uint16_t ReadInteger(FilePos pointer);
    /// 32 bits, unsigned.
    std::uint32_t ReadLong(FilePos pointer);
    /// Up to `length` bytes, ending before the first zero byte. Control characters other than tab, LF and CR are left
    /// out.
    std::string ReadString(FilePos pointer, std::int64_t length);
    /// All bytes before the first zero byte.
    std::string ReadStringNull(FilePos pointer);
    /// The UCS-2 characters in `length` bytes. Zeros are left out; a surrogate becomes the replacement character.
    std::string ReadUnicode(FilePos pointer, std::int64_t length);
    /// `length` bytes, two hexadecimal digits each.
    std::string ReadHexString(FilePos pointer, std::int64_t length);
    /// The same as they are, as far as the file has them.
    std::vector<std::uint8_t> readBytes(FilePos pointer, std::int64_t length);

    /// Raises kInvalidCall for an array of `length` bytes that is longer than both the file and 65,536 bytes.
    void checkLength(std::int64_t length) const;

    /// Counts text made from what was read. Raises kOutOfMemory when textLimit() is reached.
    void charge(std::int64_t bytes);

    /// Why nothing more can be read from this file: the disk failed or textLimit() was reached.
    const std::optional<Error>& failure() const { return m_failure; }

    std::int64_t fileSize() const { return m_file.size(); }

private:
    static constexpr std::int64_t kPageSize = 16384;

    struct Page {
        std::int64_t start = -1; // position in the file; a multiple of kPageSize
        std::size_t size = 0;    // how many bytes the file had there
        std::unique_ptr<std::uint8_t[]> bytes;
    };

    const Page& page(std::int64_t start);
    const Page& readPage(std::int64_t start);
    std::span<const std::uint8_t> stretch(std::int64_t index, std::int64_t length);
    template <std::size_t N> std::array<std::uint8_t, N> bytesAt(FilePos pointer);
    [[noreturn]] void fail(Error error);

    const InputFile& m_file;
    std::array<Page, 4> m_pages;
    std::size_t m_nextPage = 0; // the one to be replaced next
    std::int64_t m_textLeft;
    std::optional<Error> m_failure;
};

} // namespace ovisto
