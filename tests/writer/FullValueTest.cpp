// SPDX-License-Identifier: MIT

// What full documents show of the bytes in a file, and which bytes an edited value becomes.

#include "collection/DocumentLoad.h"
#include "collection/DocumentSaving.h"
#include "common/text/Hex.h"
#include "document/NodeChange.h"
#include "document/TagDictionary.h"
#include "support/Dictionary.h"
#include "support/JpegBytes.h"
#include "support/RecordingReporter.h"
#include "support/Rewriting.h"
#include "writer/FileSegments.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

using namespace std::string_literals;

namespace ovisto::test {

namespace {

constexpr std::uint16_t kArtist = 0x013B;
constexpr std::uint16_t kWindowsTitle = 0x9C9B;
constexpr std::uint16_t kComment = 0x9286;
constexpr std::uint16_t kOther = 0xC000; // a tag that nobody knows

constexpr bool kIntel = true;
constexpr bool kMotorola = false;

Bytes ascii(std::string_view text)
{
    return bytes("ASCII") + Bytes{0, 0, 0} + bytes(text);
}

Bytes unicode(const Bytes& units)
{
    return bytes("UNICODE") + Bytes{0} + units;
}

/// An entry of the first directory, and what becomes of it.
struct Row {
    const char* name;
    std::uint16_t tag;
    std::uint16_t type;
    bool littleEndian;
    Bytes value;
    const char* shown;
    const char* edited;           ///< null: not edited
    std::optional<Bytes> written; ///< none: refused
};

std::size_t sizeOf(std::uint16_t type)
{
    constexpr std::size_t kSizes[] = {1, 1, 1, 2, 4, 8, 1, 1, 2, 4, 8, 4, 8};
    return type < std::size(kSizes) ? kSizes[type] : 1;
}

ConstXmlNode entryNode(const XmlDocument& document, std::uint16_t tag)
{
    return document.selectSingleNode("/JPEG/Exif/IFD[@id='" + hexNumber(tag, 4) + "']");
}

/// The bytes of the value in the first directory.
Bytes valueIn(const std::string& path, std::uint16_t tag)
{
    const InputFile file(path);
    const TiffBlock block = exifBlock(segmentBytes(file, segmentsOf(file).front()));
    const std::optional<TiffDirectory> first = block.directoryAt({block.longAt(4)});
    for (const TiffEntry& entry : first->entries) {
        if (entry.tag == tag)
            return block.value(entry).value();
    }
    return {};
}

} // namespace

TEST(FullValues, AreShownAsTheyWereMeantAndWrittenAsTheyWereTyped)
{
    const Row rows[] = {
        {"ASCII", kArtist, 2, kIntel, bytes("Jo\0"s), "Jo", "Zoë", bytes("Zo\xEB\0"s)},
        {"code page", kArtist, 2, kIntel, bytes("\x93q\x94 \x80\0"s), "“q” €", "“q” €!", bytes("\x93q\x94 \x80!\0"s)},
        {"code page to UTF-8", kArtist, 2, kIntel, bytes("Zo\xEB\0"s), "Zoë", "Żoë", bytes("Żoë\0"s)},
        {"UTF-8 stays", kArtist, 2, kMotorola, bytes("José\0"s), "José", "Josê", bytes("Josê\0"s)},
        {"UTF-8 by chance", kArtist, 2, kIntel, bytes("x\0"s), "x", "Ã©", bytes("Ã©\0"s)},
        {"emoji", kArtist, 2, kMotorola, bytes("x\0"s), "x", "x😀", bytes("x😀\0"s)},
        {"no terminator", kArtist, 2, kIntel, bytes("abcdef"), "abcdef", "abcdeg", bytes("abcdeg\0"s)},
        {"two texts", kArtist, 2, kIntel, bytes("photo\0editor\0"s), "photo", "foto", bytes("foto\0editor\0"s)},
        {"control", kArtist, 2, kIntel, bytes("a\x01z b\0"s), "a�z b", "a�z c", bytes("a\x01z c\0"s)},
        {"control within", kArtist, 2, kIntel, bytes("a\x01z b\0"s), "a�z b", "A�Z b", std::nullopt},
        {"typed replacement", kArtist, 2, kIntel, bytes("ab\0"s), "ab", "a�", bytes("a�\0"s)},
        {"typed control", kArtist, 2, kIntel, bytes("ab\0"s), "ab", "a\x01", std::nullopt},
        {"type UTF-8", kOther, 129, kIntel, bytes("Å\0"s), "Å", "Ł", bytes("Ł\0"s)},
        {"Windows in MM", kWindowsTitle, 1, kMotorola, bytes("T\0i\0\0\0"s), "Ti", "Tż", bytes("T\0\x7C\x01\0\0"s)},
        {"Windows, other order", kWindowsTitle, 1, kIntel, bytes("\0T\0i\0\0"s), "Ti", "To", bytes("T\0o\0\0\0"s)},
        {"Windows, pair", kWindowsTitle, 1, kIntel, bytes("\x3D\xD8\0\xDE\0\0"s), "😀", "😀!",
         bytes("\x3D\xD8\0\xDE!\0\0\0"s)},
        {"Windows, lone half", kWindowsTitle, 1, kIntel,
         bytes("\x3D\xD8"
               "a\0b\0\0\0"s),
         "�ab", "�ac",
         bytes("\x3D\xD8"
               "a\0c\0\0\0"s)},
        {"Windows, undecided", kWindowsTitle, 1, kMotorola, bytes("\x0B\x4E\0\0"s), "下", "一",
         bytes("\xFF\xFE\0\x4E\0\0"s)},
        {"comment", kComment, 7, kIntel, ascii("old   "), "old", "new ", ascii("new")},
        {"comment to Unicode", kComment, 7, kMotorola, ascii("old\0\0"s), "old", "ł", unicode({0x01, 0x42})},
        {"comment in Unicode", kComment, 7, kIntel, unicode({0x42, 0x01, ' ', 0}), "ł", "łł",
         unicode({0x42, 0x01, 0x42, 0x01})},
        {"comment, wrong order", kComment, 7, kMotorola, unicode({'h', 0, 'i', 0}), "hi", "ho", ascii("ho")},
        {"comment, JIS", kComment, 7, kIntel, bytes("JIS\0\0\0\0\0"s) + Bytes{0x3C, 0x4C}, "写", "写!",
         unicode({0x99, 0x51, '!', 0})},
        {"comment, no code", kComment, 7, kIntel, Bytes(8) + bytes("ca\xC3\xA9"), "caé", nullptr, {}},
        {"code elsewhere", kOther, 7, kIntel, ascii("x"), "x", "y", ascii("y")},
        {"array", kOther, 1, kIntel, {1, 2, 3, 4, 5}, "0102030405", "0102", Bytes{1, 2}},
        {"undefined", kOther, 7, kIntel, {1, 2, 0, 4, 5}, "0102000405", "0102ff", Bytes{1, 2, 0xFF}},
        {"undefined text", kOther, 7, kIntel, bytes("0230"), "0230", "0231", bytes("0231")},
        {"four bytes", 0xA300, 7, kIntel, {3}, "03", "01", Bytes{1}},
        {"signed", kOther, 8, kMotorola, {0xFF, 0xFE}, "-2", "-3", Bytes{0xFF, 0xFD}},
        {"signed range", kOther, 8, kMotorola, {0xFF, 0xFE}, "-2", "40000", std::nullopt},
        {"signed fraction", kOther, 10, kIntel, Bytes(4, 0xFF) + Bytes{3, 0, 0, 0}, "-1/3", "-2/3",
         Bytes{0xFE, 0xFF, 0xFF, 0xFF, 3, 0, 0, 0}},
        {"many digits",
         kOther,
         4,
         kMotorola,
         {0xFF, 0xFF, 0xFF, 0xFF},
         "4294967295",
         "4294967294",
         Bytes{0xFF, 0xFF, 0xFF, 0xFE}},
        {"float", kOther, 11, kMotorola, {0x3D, 0xCC, 0xCC, 0xCD}, "0.1", "0.5", Bytes{0x3F, 0, 0, 0}},
        {"double", kOther, 12, kIntel, {0, 0, 0, 0, 0, 0, 0xF0, 0x3F}, "1", "x", std::nullopt},
    };
    const TemporaryFolder folder;
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        ExifBytes exif(row.littleEndian);
        const auto count = static_cast<std::uint32_t>(row.value.size() / sizeOf(row.type));
        exif.ifd0({exif.ascii(0x010F, "Maker"), Tag{row.tag, row.type, count, row.value}});
        const std::string path = folder.file("a.jpg", JpegBytes().exif(exif).end());
        XmlDocument document = loadDocument(path, {.reading = Reading::Full});
        EXPECT_EQ(entryNode(document, row.tag).text(), row.shown);
        if (row.edited == nullptr)
            continue;
        document.selectSingleNode("/JPEG/Exif/IFD[@id='" + hexNumber(row.tag, 4) + "']").setText(row.edited);
        RecordingReporter reporter;
        ErrorTrap trap;
        trap.run([&] { saveNow(document, path, WritingWay::Keep, reporter); });
        EXPECT_EQ(trap.pending(), !row.written) << (trap.pending() ? inEnglish(trap.error().description) : "");
        EXPECT_EQ(valueIn(path, row.tag), row.written.value_or(row.value));
    }
}

TEST(FullValues, KeepThePayloadOfAnXmpPacket)
{
    const TemporaryFolder folder;
    const Bytes identifier = bytes("ns\0"s);
    const Bytes payload = bytes("<x>\r\nlö]]>\0\x01z &amp;</x>"s);
    const std::string path = folder.file("a.jpg", JpegBytes().segment(0xFFE1, identifier + payload).end());
    XmlDocument document = loadDocument(path, {.reading = Reading::Full});
    EXPECT_EQ(document.selectSingleNode("/JPEG/Exif1").text(), "\n<x>\r\nlö]]>��z &amp;</x>");
    RecordingReporter reporter;
    EXPECT_EQ(saveNow(document, path, WritingWay::Keep, reporter).changed, 0U);
    document.selectSingleNode("/JPEG/Exif1").setText("\n<x>\r\nlö]]>��z &amp;ż</x>");
    saveNow(document, path, WritingWay::Keep, reporter);
    const InputFile file(path);
    const Bytes segment = segmentBytes(file, segmentsOf(file).front());
    EXPECT_EQ(Bytes(segment.begin() + 4, segment.end()), identifier + bytes("<x>\r\nlö]]>\0\x01z &amp;ż</x>"s));
}

TEST(FullValues, PlacesAreMadeAndDeletedWithTheirPointerAndEveryByte)
{
    const TemporaryFolder folder;
    const Bytes before = fullPhotograph(false);
    const std::string path = folder.file("a.jpg", before);
    RecordingReporter reporter;
    const auto change = [&](NodeAction action, const std::string& nodePath, const std::string& value) {
        XmlDocument document = loadDocument(path, {.reading = Reading::Full});
        applyChange(document, {.action = action, .entry = dictionary().entry(nodePath), .value = value}, reporter);
        saveNow(document, path, WritingWay::Keep, reporter);
    };
    const std::string gps = "/JPEG/Exif[@id='FFE1']/IFDG";
    change(NodeAction::Delete, gps, {});
    change(NodeAction::Set, gps + "/IFD[@id='001C']", "Kraków");
    change(NodeAction::Set, gps + "/IFD[@id='0002']", "50/1,3/1,4123/100");
    const XmlDocument document = loadDocument(path, {.reading = Reading::Full});
    EXPECT_EQ(document.selectSingleNode("/JPEG/Exif/IFDG/IFD[@id='0000']").text(), "02030000");
    EXPECT_EQ(document.selectSingleNode("/JPEG/Exif/IFDG/IFD[@id='001C']").text(), "Kraków");
    EXPECT_FALSE(loadDocument(path).selectSingleNode("/JPEG/Exif/IFDG"));
    change(NodeAction::Delete, "/JPEG/Exif[@id='FFE1']/IFD[@id='8825']", {});
    const Bytes area = {'K', 0, 'r', 0, 'a', 0, 'k', 0};
    const Bytes after = contentOf(path);
    EXPECT_EQ(std::search(after.begin(), after.end(), area.begin(), area.end()), after.end());
    EXPECT_FALSE(loadDocument(path).selectSingleNode("/JPEG/Exif/IFD[@id='8825']"));
    for (const NodeAction action : {NodeAction::Set, NodeAction::Add, NodeAction::Delete}) {
        const NodeChange basic{.action = action, .entry = dictionary().entry(gps + "/IFD[@id='001C']")};
        EXPECT_EQ(objection(basic, Reading::Basic), Phrase(Message::NodeOfFullReading));
    }
}

} // namespace ovisto::test
