// SPDX-License-Identifier: MIT

#include "jpeg/ByteReader.h"

#include "common/text/CodePage.h"
#include "common/text/Hex.h"
#include "common/text/Unicode.h"

#include <algorithm>
#include <utility>

namespace ovisto {

ByteReader::ByteReader(const InputFile& file) : m_file(file), m_textLeft(textLimit(file.size())) {}

std::uint8_t ByteReader::ReadByte(FilePos pointer)
{
    return bytesAt<1>(pointer)[0];
}

std::uint16_t ByteReader::ReadInteger(FilePos pointer)
{
    const auto [b1, b2] = bytesAt<2>(pointer);
    return static_cast<std::uint16_t>(littleEndian ? b1 + 256 * b2 : 256 * b1 + b2);
}

std::uint32_t ByteReader::ReadLong(FilePos pointer)
{
    auto bytes = bytesAt<4>(pointer);
    if (littleEndian)
        std::ranges::reverse(bytes);
    std::uint32_t number = 0;
    for (const std::uint8_t byte : bytes)
        number = 256 * number + byte;
    return number;
}

std::string ByteReader::ReadString(FilePos pointer, std::int64_t length)
{
    std::string text;
    while (length > 0) {
        const auto bytes = stretch(pointer.value - 1, length);
        const auto end = std::ranges::find(bytes, 0);
        charge(end - bytes.begin());
        appendCharacters(text, {bytes.begin(), end}, ControlBytes::Drop);
        if (end != bytes.end() || bytes.empty())
            break;
        pointer = pointer + static_cast<std::int64_t>(bytes.size());
        length -= static_cast<std::int64_t>(bytes.size());
    }
    return text;
}

std::string ByteReader::ReadStringNull(FilePos pointer)
{
    std::string text;
    for (;;) {
        const auto bytes = stretch(pointer.value - 1, kPageSize);
        const auto end = std::ranges::find(bytes, 0);
        charge(end - bytes.begin());
        appendCharacters(text, {bytes.begin(), end}, ControlBytes::Keep);
        if (end != bytes.end() || bytes.empty())
            return text;
        pointer = pointer + static_cast<std::int64_t>(bytes.size());
    }
}

std::string ByteReader::ReadUnicode(FilePos pointer, std::int64_t length)
{
    if (length <= 0)
        return {};
    checkLength(length);
    charge(length);
    std::string text;
    for (std::int64_t i = 0; i <= length - 2; i += 2) {
        const char16_t unit = ReadInteger(pointer + i);
        const bool isSurrogate = unit >= 0xD800 && unit <= 0xDFFF;
        if (unit != 0)
            appendCharacter(text, isSurrogate ? U'\uFFFD' : unit);
    }
    return text;
}

std::string ByteReader::ReadHexString(FilePos pointer, std::int64_t length)
{
    if (length <= 0)
        return {};
    checkLength(length);
    charge(2 * length);
    std::string text;
    text.reserve(static_cast<std::size_t>(2 * length));
    while (length > 0) {
        const auto bytes = stretch(pointer.value - 1, length);
        if (bytes.empty())
            break;
        appendHexRun(text, bytes);
        pointer = pointer + static_cast<std::int64_t>(bytes.size());
        length -= static_cast<std::int64_t>(bytes.size());
    }
    text.append(static_cast<std::size_t>(2 * length), '0');
    return text;
}

std::vector<std::uint8_t> ByteReader::readBytes(FilePos pointer, std::int64_t length)
{
    std::vector<std::uint8_t> bytes;
    if (length <= 0)
        return bytes;
    checkLength(length);
    charge(length);
    while (length > 0) {
        const auto found = stretch(pointer.value - 1, length);
        if (found.empty())
            break;
        bytes.insert(bytes.end(), found.begin(), found.end());
        pointer = pointer + static_cast<std::int64_t>(found.size());
        length -= static_cast<std::int64_t>(found.size());
    }
    return bytes;
}

void ByteReader::checkLength(std::int64_t length) const
{
    constexpr std::int64_t kAlwaysAllowed = 65536;
    if (length > std::max(fileSize(), kAlwaysAllowed))
        throw systemError(kInvalidCall);
}

/// The page that begins at `start`. A few pages stay, as directories and their values often lie in different ones.
const ByteReader::Page& ByteReader::page(std::int64_t start)
{
    const auto* const kept = std::ranges::find(m_pages, start, &Page::start);
    return kept != m_pages.end() ? *kept : readPage(start);
}

/// Reads the page that begins at `start`, in place of the oldest one.
const ByteReader::Page& ByteReader::readPage(std::int64_t start)
{
    Page& read = m_pages[m_nextPage];
    m_nextPage = (m_nextPage + 1) % m_pages.size();
    read.start = -1;
    if (!read.bytes)
        read.bytes = std::make_unique_for_overwrite<std::uint8_t[]>(kPageSize);
    ErrorTrap trap;
    trap.run([&] { read.size = m_file.readAt(start, {read.bytes.get(), kPageSize}); });
    if (trap.pending())
        fail(trap.take());
    read.start = start;
    return read;
}

/// The bytes from `index` (the first is 0) on that stand together in memory: at least one and at most `length`, or
/// none past the end of the file.
std::span<const std::uint8_t> ByteReader::stretch(std::int64_t index, std::int64_t length)
{
    if (index < 0 || index >= fileSize())
        return {};
    const std::int64_t within = index % kPageSize;
    const Page& found = page(index - within);
    const auto size = static_cast<std::int64_t>(found.size);
    if (within >= size)
        return {};
    return {found.bytes.get() + within, static_cast<std::size_t>(std::min(length, size - within))};
}

template <std::size_t N> std::array<std::uint8_t, N> ByteReader::bytesAt(FilePos pointer)
{
    std::array<std::uint8_t, N> bytes{};
    std::size_t done = 0;
    while (done < N) {
        const auto found =
            stretch(pointer.value - 1 + static_cast<std::int64_t>(done), static_cast<std::int64_t>(N - done));
        if (found.empty())
            break;
        std::ranges::copy(found, bytes.begin() + static_cast<std::ptrdiff_t>(done));
        done += found.size();
    }
    return bytes;
}

void ByteReader::charge(std::int64_t bytes)
{
    m_textLeft -= bytes;
    if (m_textLeft < 0)
        fail(systemError(kOutOfMemory));
}

void ByteReader::fail(Error error)
{
    m_failure = std::move(error);
    throw Error(*m_failure);
}

} // namespace ovisto
