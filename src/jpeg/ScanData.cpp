// SPDX-License-Identifier: MIT

#include "jpeg/ScanData.h"

#include "jpeg/Markers.h"

#include <array>
#include <span>

namespace ovisto {

namespace {

constexpr std::uint8_t kMark = 0xFF;

/// The bytes of a file, one after the other.
class ByteStream {
public:
    ByteStream(const InputFile& file, std::int64_t offset) : m_file(file), m_offset(offset) {}

    /// None after the last one.
    std::optional<std::uint8_t> next()
    {
        if (m_place == m_bytes.size())
            refill();
        if (m_bytes.empty())
            return std::nullopt;
        return m_bytes[m_place++];
    }

    /// How many bytes of the file stand before the next one.
    std::int64_t offset() const { return m_offset - static_cast<std::int64_t>(m_bytes.size() - m_place); }

    void skip(std::int64_t bytes)
    {
        m_offset = offset() + bytes;
        m_bytes = {};
        m_place = 0;
    }

private:
    void refill()
    {
        const std::size_t size = m_file.readAt(m_offset, m_buffer);
        m_offset += static_cast<std::int64_t>(size);
        m_bytes = std::span(m_buffer).first(size);
        m_place = 0;
    }

    const InputFile& m_file;
    std::int64_t m_offset; ///< of the first byte after m_bytes
    std::array<std::uint8_t, 32768> m_buffer;
    std::span<const std::uint8_t> m_bytes;
    std::size_t m_place = 0;
};

/// The code of the next marker, without the 0xFF before it. Entropy-coded data has a zero byte after each 0xFF, and
/// restart markers (ITU-T T.81, B.1.1.2, B.1.1.5). None at the end of the file.
std::optional<std::uint8_t> nextMarker(ByteStream& bytes)
{
    constexpr std::uint8_t kFirstRestart = 0xD0;
    constexpr std::uint8_t kLastRestart = 0xD7;
    std::uint8_t before = 0;
    while (const auto byte = bytes.next()) {
        const bool isData = *byte == 0 || *byte == kMark || (*byte >= kFirstRestart && *byte <= kLastRestart);
        if (before == kMark && !isData)
            return byte;
        before = *byte;
    }
    return std::nullopt;
}

bool isSegment(std::uint8_t code)
{
    constexpr std::uint8_t kFirstSegment = 0xC0;
    constexpr std::uint8_t kStartOfImageCode = 0xD8;
    return code >= kFirstSegment && code != kStartOfImageCode;
}

bool isNote(std::uint8_t code)
{
    constexpr std::uint8_t kFirstApp = 0xE0;
    constexpr std::uint8_t kLastApp = 0xEF;
    constexpr std::uint8_t kComment = 0xFE;
    return (code >= kFirstApp && code <= kLastApp) || code == kComment;
}

} // namespace

ScanData scanData(const InputFile& file, FilePos start)
{
    constexpr std::uint8_t kEndOfImageCode = 0xD9;
    constexpr std::int64_t kLengthSize = 2;
    ScanData data;
    ByteStream bytes(file, start.value - 1);
    while (const auto code = nextMarker(bytes)) {
        if (*code == kEndOfImageCode) {
            data.end = bytes.offset();
            return data;
        }
        const FilePos position{bytes.offset() - 1};
        const auto high = isSegment(*code) ? bytes.next() : std::nullopt;
        const auto low = high ? bytes.next() : std::nullopt;
        const int length = low ? *high * 256 + *low : 0;
        if (length < kLengthSize)
            return data;
        bytes.skip(length - kLengthSize);
        if (isNote(*code))
            data.notes.push_back(
                {static_cast<std::uint16_t>(kMark * 256 + *code), static_cast<std::uint16_t>(length), position});
    }
    return data;
}

} // namespace ovisto
