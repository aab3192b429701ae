// SPDX-License-Identifier: MIT

#include "jpeg/ByteReader.h"
#include "common/Error.h"
#include "common/system/posix/SystemCalls.h"
#include "common/text/CodePage.h"
#include "common/text/Hex.h"
#include "common/text/Unicode.h"
#include "support/JpegBytes.h"
#include "support/RecordingReporter.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdint>
#include <cstring>
#include <filesystem>
#include <optional>

#include <unistd.h>

namespace ovisto::test {

namespace {

/// A reader over a file of the given content.
class ByteReaderTest : public testing::Test {
protected:
    ByteReader& over(const Bytes& content)
    {
        m_file.emplace(m_folder.file("a", content));
        return m_reader.emplace(*m_file);
    }

    std::string path() const { return m_folder.path("a"); }

private:
    TemporaryFolder m_folder;
    std::optional<InputFile> m_file;
    std::optional<ByteReader> m_reader;
};

constexpr std::int64_t kPage = 16384;

/// Reads as a poor disk does: interrupted at every second call, half of the bytes each time, and only junk in the
/// second half of the fifth page.
ssize_t troubledRead(int file, void* into, std::size_t size, off_t offset)
{
    static bool isInterrupted = false;
    isInterrupted = !isInterrupted;
    std::memset(into, 0xEE, size);
    errno = isInterrupted ? EINTR : EIO;
    return isInterrupted || offset > 4 * kPage ? ssize_t{-1} : pread(file, into, (size + 1) / 2, offset);
}

} // namespace

TEST_F(ByteReaderTest, ReadsNumbersInEitherByteOrderAndZerosPastTheEnd)
{
    ByteReader& reader = over({0xFF, 0xD8, 0x00, 0x01});
    EXPECT_EQ(reader.ReadByte({2}), 0xD8);
    EXPECT_EQ(reader.ReadInteger({1}), 65496);
    EXPECT_EQ(reader.ReadLong({1}), 0xFFD80001);
    EXPECT_EQ(reader.ReadInteger({4}), 0x0100) << "the second byte lies past the end";
    reader.littleEndian = true;
    EXPECT_EQ(reader.ReadInteger({1}), 55551);
    EXPECT_EQ(reader.ReadLong({1}), 0x0100D8FF);
    EXPECT_EQ(reader.ReadLong({1'000'000'000'000}), 0U);
}

TEST_F(ByteReaderTest, EndsTextsAtAZeroByteAndDropsControls)
{
    ByteReader& reader = over({'A', 'B', 7, 'C', '\t', 0x80, 0xE9, 0x81, 31, 0, 'D'});
    EXPECT_EQ(reader.ReadString({1}, 11), "ABC\t€é\u0081");
    EXPECT_EQ(reader.ReadString({1}, 3), "AB");
    EXPECT_EQ(reader.ReadString({1}, 0), "");
    EXPECT_EQ(reader.ReadString({1}, -4), "");
    EXPECT_EQ(reader.ReadString({11}, 4'000'000'000), "D") << "a text ends where the file ends";
    EXPECT_EQ(reader.ReadStringNull({1}), "AB\aC\t€é\u0081\x1F");
}

TEST_F(ByteReaderTest, SkipsZeroUnitsOfWideTexts)
{
    ByteReader& reader = over({0, 'a', 0, 0, 0x20, 0xAC, 0, 'b', 0xD8, 0x3D});
    EXPECT_EQ(reader.ReadUnicode({1}, 6), "a€");
    EXPECT_EQ(reader.ReadUnicode({1}, 9), "a€b") << "half a unit does not count";
    EXPECT_EQ(reader.ReadUnicode({9}, 2), "\uFFFD");
    EXPECT_EQ(reader.ReadUnicode({1}, -2), "");
    reader.littleEndian = true;
    EXPECT_EQ(reader.ReadUnicode({2}, 2), "a");
}

TEST_F(ByteReaderTest, FillsRunsWithZerosUpToALengthThatAFileCanHave)
{
    ByteReader& reader = over({0x0A, 0xFF});
    EXPECT_EQ(reader.ReadHexString({1}, 2), "0AFF");
    EXPECT_EQ(reader.ReadHexString({2}, 4), "FF000000");
    EXPECT_EQ(reader.ReadHexString({1}, -1), "");
    EXPECT_EQ(reader.ReadHexString({1}, 65536).size(), 131072U);
    EXPECT_EQ(errorNumberOf([&] { reader.ReadHexString({1}, 65537); }), kInvalidCall);
    EXPECT_EQ(errorNumberOf([&] { reader.ReadUnicode({1}, 65538); }), kInvalidCall);
}

TEST_F(ByteReaderTest, ReadsAcrossThePiecesThatItKeepsInMemory)
{
    Bytes content(200'000);
    for (std::size_t i = 0; i < content.size(); ++i)
        content[i] = static_cast<std::uint8_t>(i % 251 + 1);
    ByteReader& reader = over(content);
    std::string run;
    appendHexRun(run, content);
    EXPECT_EQ(reader.ReadHexString({1}, 200'000), run);
    for (const std::int64_t place : {0, 16382, 65534, 131071, 16383, 199'996}) {
        const std::string bytes = run.substr(static_cast<std::size_t>(2 * place), 8);
        EXPECT_EQ(reader.ReadHexString({place + 1}, 4), bytes);
        EXPECT_EQ(hexNumber(reader.ReadLong({place + 1}), 8), bytes);
    }
    EXPECT_EQ(characterCount(reader.ReadStringNull({1})), 200'000U);
}

TEST_F(ByteReaderTest, StopsWhenTheSameBytesAreReadWithoutEnd)
{
    ByteReader& reader = over(Bytes(100, 'x'));
    int reads = 0;
    while (errorNumberOf([&] { reader.ReadHexString({1}, 65536); }) == 0 && reads < 1000)
        ++reads;
    EXPECT_EQ(reads, textLimit(100) / 131072);
    ASSERT_TRUE(reader.failure());
    EXPECT_EQ(reader.failure()->number, kOutOfMemory);
}

TEST_F(ByteReaderTest, ReadsZerosWhereTheFileWasCutMeanwhile)
{
    ByteReader& reader = over(Bytes(40'000, 'x'));
    std::filesystem::resize_file(path(), 20'000);
    EXPECT_EQ(reader.ReadHexString({20'000}, 3), "780000");
    EXPECT_EQ(reader.ReadHexString({39'000}, 2), "0000");
}

TEST_F(ByteReaderTest, NeverTakesStaleBytesForThoseThatCannotBeRead)
{
    Bytes content;
    for (std::uint8_t page = 0; page < 5; ++page)
        content.insert(content.end(), kPage, page);
    ByteReader& reader = over(content);
    SystemCalls calls = systemCalls();
    calls.pread = troubledRead;
    const ReplacedSystemCalls replaced(calls);
    for (const char* time : {"first", "again"}) {
        for (const std::int64_t page : {0, 1, 2, 3})
            EXPECT_EQ(reader.ReadByte({page * kPage + 1}), page) << time;
        EXPECT_EQ(errorNumberOf([&] { reader.ReadByte({4 * kPage + 1}); }), kDeviceError) << time;
    }
}

} // namespace ovisto::test
