#pragma once

#include "common/ErrorReport.h"
#include "common/system/File.h"

#include <cstdint>
#include <string_view>

namespace ovisto {

/// Writes the values that JPEG segments are made of, one after the other, to a file. An operation that fails reports
/// the error and raises it, so that nothing more of the same value is written.
class SegmentWriter {
public:
    /// Both must outlive the writer.
    SegmentWriter(OutputFile& file, ErrorReporter& reporter) : m_file(file), m_reporter(reporter) {}

    /// True: the least significant byte comes first ("II"). It must be false wherever a segment's length is written.
    bool IntelOrder = false;

    /// The bytes that pairs of hexadecimal digits name. A digit left over at the end stands for both digits of a byte.
    void WriteHex(std::string_view hex);
    /// A segment's length, 16 bits that count themselves, and the bytes of `hex`. Raises kInvalidCall when a digit left
    /// over makes more bytes than the length says.
    void WriteSegmentHex(std::string_view hex);
    /// 16 bits. Raises kOverflow, after two bytes all the same, for what is not 0 to 65535.
    void WriteInteger(std::int64_t number);
    /// 32 bits. Raises kOverflow, after four bytes all the same, for what is not 0 to 2147483647.
    void WriteLong(std::int64_t number);
    /// One byte a character, and zero bytes: one, or as many as make four bytes of a text of fewer than three.
    void WriteNarrowString(std::string_view text);
    /// One UTF-16 unit a character, and a zero unit; two for the empty text. Raises kOverflow for characters from
    /// U+8000 on.
    void WriteWideString(std::string_view text);
    /// One byte a character, and one zero byte.
    void writeTerminated(std::string_view text);

    /// Bytes written so far.
    std::int64_t written() const { return m_written; }

    ErrorReporter& reporter() { return m_reporter; }

private:
    void writeBytes(std::span<const std::uint8_t> bytes);
    void writeNumber(std::int64_t number, std::size_t size);
    void writeZeros(std::size_t count);
    OutputFile& m_file;
    ErrorReporter& m_reporter;
    std::int64_t m_written = 0;
};

/// Raises kInvalidCall when a segment of `said` bytes was written with `written` bytes: whatever follows it in the file
/// could not be found any more.
void checkSegmentLength(std::int64_t said, std::int64_t written);

} // namespace ovisto
