// SPDX-License-Identifier: MIT

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

    /// True if the least significant byte comes first ("II"). Must be false when a segment's length is written.
    bool IntelOrder = false;

    /// Writes the bytes of a run of hexadecimal digits. A single digit at the end counts as both digits of a byte.
    void WriteHex(std::string_view hex);
    /// Writes a segment's length, 16 bits that count themselves, and the bytes of `hex`. Raises kInvalidCall if a
    /// single digit at the end makes one byte more than the length says.
    void WriteSegmentHex(std::string_view hex);
    /// Writes 16 bits. Raises kOverflow for a number outside 0 to 65535, but still writes two bytes.
    void WriteInteger(std::int64_t number);
    /// Writes 32 bits. Raises kOverflow for a number outside 0 to 2147483647, but still writes four bytes.
    void WriteLong(std::int64_t number);
    /// Writes one byte per character, then one zero byte; a text of fewer than three characters is filled with zeros to
    /// four bytes.
    void WriteNarrowString(std::string_view text);
    /// Writes the UTF-16 units of the text, then a zero unit; two for the empty text. Raises kOverflow for units from
    /// 0x8000 on, and kInvalidCall for control characters other than tab, LF and CR.
    void WriteWideString(std::string_view text);
    /// Writes one byte per character, then a zero byte.
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

/// Raises kInvalidCall if a segment whose length says `said` bytes has `written` bytes: nothing after it in the file
/// could be found.
void checkSegmentLength(std::int64_t said, std::int64_t written);

} // namespace ovisto
