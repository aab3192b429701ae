// SPDX-License-Identifier: MIT

#include "writer/SegmentWriter.h"

#include "common/text/CodePage.h"
#include "common/text/Hex.h"
#include "common/text/NumberText.h"
#include "common/text/Unicode.h"

#include <array>
#include <limits>
#include <string>
#include <vector>

namespace ovisto {

namespace {

/// The text with one byte for each character, none of which is a hexadecimal digit that was not one before.
std::string oneByteACharacter(std::string_view text)
{
    std::string bytes;
    for (const char32_t character : characters(text))
        bytes.push_back(character < 128 ? static_cast<char>(character) : '?');
    return bytes;
}

/// A reader hands such a unit on as a reference that no document may have: the file could not be opened any more.
constexpr bool isUnreadable(char16_t unit)
{
    return unit < u' ' && unit != u'\t' && unit != u'\n' && unit != u'\r';
}

/// The bytes that a text of hexadecimal digits names.
std::vector<std::uint8_t> bytesOf(std::string_view hex)
{
    return hexRunBytes(characterCount(hex) == hex.size() ? hex : oneByteACharacter(hex));
}

} // namespace

void SegmentWriter::WriteHex(std::string_view hex)
{
    reported(m_reporter, Message::SegmentWriteFailed, [&] { writeBytes(bytesOf(hex)); });
}

void SegmentWriter::WriteSegmentHex(std::string_view hex)
{
    const std::int64_t start = written();
    const std::int64_t length = halfToEven(static_cast<std::int64_t>(characterCount(hex))) + 2;
    WriteInteger(length);
    WriteHex(hex);
    checkSegmentLength(length, written() - start);
}

void SegmentWriter::WriteInteger(std::int64_t number)
{
    reported(
        m_reporter, [&] { return Phrase(Message::SegmentWriteInteger, std::to_string(number)); },
        [&] {
            writeNumber(number, 2);
            if (number < 0 || number > std::numeric_limits<std::uint16_t>::max())
                throw systemError(kOverflow);
        });
}

// Numbers were signed when files of this format were first written: the upper half of the range fails to this day.
void SegmentWriter::WriteLong(std::int64_t number)
{
    reported(
        m_reporter, [&] { return Phrase(Message::SegmentWriteLong, std::to_string(number)); },
        [&] {
            writeNumber(number, 4);
            if (number < 0 || number > std::numeric_limits<std::int32_t>::max())
                throw systemError(kOverflow);
        });
}

void SegmentWriter::WriteNarrowString(std::string_view text)
{
    constexpr std::size_t kFieldSize = 4;
    const std::size_t length = characterCount(text);
    reported(m_reporter, Message::SegmentWriteString, [&] {
        writeBytes(codePageBytes(text));
        writeZeros(length < kFieldSize - 1 ? kFieldSize - length : 1);
    });
}

void SegmentWriter::WriteWideString(std::string_view text)
{
    constexpr char16_t kFirstNegative = 0x8000; // as a signed unit, which is how it is split into its bytes
    const std::u16string units = utf16(text);
    reported(m_reporter, Message::SegmentWriteString, [&] {
        for (const char16_t unit : units) {
            if (unit >= kFirstNegative)
                throw systemError(kOverflow);
            if (isUnreadable(unit))
                throw Error{kInvalidCall, Message::TextHasControl};
            writeNumber(unit, 2);
        }
        writeZeros(units.empty() ? 4 : 2);
    });
}

void SegmentWriter::writeTerminated(std::string_view text)
{
    reported(m_reporter, Message::SegmentWriteString, [&] {
        writeBytes(codePageBytes(text));
        writeZeros(1);
    });
}

void SegmentWriter::writeBytes(std::span<const std::uint8_t> bytes)
{
    m_file.write(bytes);
    m_written += static_cast<std::int64_t>(bytes.size());
}

/// The lowest `size` bytes of `number`, in the byte order of the moment.
void SegmentWriter::writeNumber(std::int64_t number, std::size_t size)
{
    std::array<std::uint8_t, 4> bytes{};
    for (std::size_t i = 0; i < size; ++i) {
        const std::size_t place = IntelOrder ? i : size - 1 - i;
        bytes[place] = static_cast<std::uint8_t>(static_cast<std::uint64_t>(number) >> (8 * i));
    }
    writeBytes({bytes.data(), size});
}

/// Up to four.
void SegmentWriter::writeZeros(std::size_t count)
{
    constexpr std::array<std::uint8_t, 4> kZeros{};
    writeBytes({kZeros.data(), count});
}

void checkSegmentLength(std::int64_t said, std::int64_t written)
{
    if (written != said)
        throw Error{kInvalidCall, {Message::SegmentLengthWrong, written, said}};
}

} // namespace ovisto
