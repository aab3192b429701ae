// SPDX-License-Identifier: MIT

// Exif segments of odd shapes, changed where they stand.

#include "writer/ExifPatch.h"
#include "collection/DocumentLoad.h"
#include "document/Directories.h"
#include "document/NodeChange.h"
#include "document/NodePath.h"
#include "document/NodePaths.h"
#include "document/TagDictionary.h"
#include "support/JpegBytes.h"
#include "support/RecordingReporter.h"
#include "writer/ExifContent.h"
#include "writer/FileSegments.h"
#include "writer/NewVersion.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>

namespace ovisto::test {

namespace {

/// A TIFF structure put together byte by byte, little-endian unless said otherwise.
class Tiff {
public:
    explicit Tiff(bool littleEndian = true) : m_exif(littleEndian)
    {
        m_bytes = littleEndian ? Bytes{'I', 'I', 42, 0} : Bytes{'M', 'M', 0, 42};
        number(8, 4);
    }

    Tiff& number(std::uint32_t value, int size)
    {
        const Bytes bytes = m_exif.number(value, size);
        m_bytes.insert(m_bytes.end(), bytes.begin(), bytes.end());
        return *this;
    }
    Tiff& directory(std::uint32_t entries) { return number(entries, 2); }
    Tiff& entry(std::uint32_t tag, std::uint32_t type, std::uint32_t count, std::uint32_t field)
    {
        return number(tag, 2).number(type, 2).number(count, 4).number(field, 4);
    }
    Tiff& next(std::uint32_t offset) { return number(offset, 4); }
    Tiff& text(const std::string& text)
    {
        const Bytes characters = bytes(text);
        m_bytes.insert(m_bytes.end(), characters.begin(), characters.end());
        return *this;
    }
    Tiff& zeros(std::size_t count)
    {
        m_bytes.resize(m_bytes.size() + count);
        return *this;
    }

    std::uint32_t size() const { return static_cast<std::uint32_t>(m_bytes.size()); }

    Bytes photograph() const
    {
        return JpegBytes().segment(0xFFE1, bytes("Exif") + Bytes{0, 0} + m_bytes).segment(0xFFDB, {1, 2}).end();
    }

private:
    ExifBytes m_exif;
    Bytes m_bytes;
};

using Edit = std::function<void(XmlDocument&)>;

const TagDictionary& dictionary()
{
    static const TagDictionary dictionary(OVISTO_DATA_FOLDER "Merovel.xml");
    return dictionary;
}

Edit set(const std::string& path, const std::string& value)
{
    return [=](XmlDocument& document) {
        RecordingReporter reporter;
        applyChange(document, {.action = NodeAction::Set, .entry = dictionary().entry(path), .value = value}, reporter);
    };
}

Edit remove(const std::string& path)
{
    return [=](XmlDocument& document) {
        XmlNode node = document.selectSingleNode(path);
        ASSERT_TRUE(node) << path;
        RecordingReporter reporter;
        applyChange(document, {.action = NodeAction::Delete, .node = node}, reporter);
    };
}

std::string exifPath(const std::string& below)
{
    return kExifPath + below;
}

TiffBlock blockOf(const std::string& path)
{
    const InputFile file(path);
    const std::vector<Segment> segments = segmentsOf(file);
    return exifBlock(segmentBytes(file, *std::ranges::find(segments, 0xFFE1, &Segment::marker)));
}

/// A photograph that edits are made to, one save each.
class Photograph {
public:
    explicit Photograph(const Bytes& bytes) : m_path(m_folder.file("a.jpg", bytes)) {}

    /// Returns why it was refused; empty when it was saved.
    std::string save(const Edit& edit)
    {
        XmlDocument after = loadDocument(m_path);
        edit(after);
        const Bytes before = contentOf(m_path);
        RecordingReporter reporter;
        ErrorTrap trap;
        trap.run([&] {
            NewVersion version(reporter, m_path, {ReadOnlyFails::AtOnce});
            const XmlDocument old = loadDocument(m_path);
            version.write({WritingWay::Keep, old, after, documentReader(Reading::Basic)});
            receipt = version.receipt();
            version.bringToDisk();
            version.putInPlace();
        });
        EXPECT_EQ(m_folder.names().size(), 1U);
        if (!trap.pending())
            return {};
        EXPECT_EQ(contentOf(m_path), before);
        return inEnglish(trap.error().description);
    }

    Bytes content() const { return contentOf(m_path); }
    TiffBlock block() const { return blockOf(m_path); }
    std::string text(const std::string& path) const { return loadDocument(m_path).selectSingleNode(path).text(); }

    SaveReceipt receipt;

private:
    TemporaryFolder m_folder;
    std::string m_path;
};

constexpr std::uint32_t kAscii = 2;
constexpr std::uint32_t kLongType = 4;

} // namespace

TEST(ExifPatch, KeepsTheFirstDirectoryWhereProgramsLookForIt)
{
    // The first value has to make room for a title; it is followed by the Exif directory, which stays.
    Tiff tiff;
    tiff.directory(2).entry(0x010F, kAscii, 14, 38).entry(0x8769, kLongType, 1, 52).next(0);
    tiff.text("Acme Cameras").zeros(2).directory(1).entry(0x9000, 7, 4, 0x30323230).next(0);
    Photograph photograph(tiff.photograph());
    ASSERT_EQ(photograph.save(set(kTitlePath, "A title")), "");
    EXPECT_EQ(photograph.block().longAt(4), 8U);
    EXPECT_EQ(photograph.block().longAt(8 + 2 + 12 + 8), 52U); // the Exif directory
}

TEST(ExifPatch, MovesTheFirstDirectoryWhereNothingCanMakeRoom)
{
    Tiff tiff; // the Exif directory follows at once
    tiff.directory(1).entry(0x8769, kLongType, 1, 26).next(0).directory(1).entry(0x9000, 7, 4, 0x30323230).next(0);
    Photograph photograph(tiff.photograph());
    ASSERT_EQ(photograph.save(set(kTitlePath, "A title")), "");
    EXPECT_NE(photograph.block().longAt(4), 8U);
    EXPECT_EQ(photograph.text(exifPath("/IFDE/IFD[@id='9000']")), "0220");
    EXPECT_EQ(photograph.text(kTitlePath), "A title");
}

TEST(ExifPatch, LeavesWhatSharesItsBytesWithSomethingEdited)
{
    Tiff tiff; // two texts at one place, and one directory that two entries lead to
    tiff.directory(4).entry(0x010E, kAscii, 12, 62).entry(0x0110, kAscii, 12, 62);
    tiff.entry(0x8769, kLongType, 1, 74).entry(0x8825, kLongType, 1, 74).next(0);
    tiff.text(std::string("Same bytes.\0", 12)).directory(1).entry(0x9000, 7, 4, 0x30323230).next(0);
    Photograph photograph(tiff.photograph());

    ASSERT_EQ(photograph.save(set(exifPath("/IFD[@id='010E']"), "Another text")), "");
    EXPECT_EQ(photograph.text(exifPath("/IFD[@id='0110']")), "Same bytes.");
    EXPECT_EQ(photograph.receipt.notes.size(), 1U) << "the old text is still there";

    ASSERT_EQ(photograph.save(set(exifPath("/IFDE/IFD[@id='9000']"), "0231")), "");
    ExifContent content = exifContent(photograph.block());
    EXPECT_EQ(content.directories["IFD0/8769"].entries.front().bytes, bytes("0231"));
    EXPECT_EQ(content.directories["IFD0/8825"].entries.front().bytes, bytes("0220"));
}

TEST(ExifPatch, KeepsWhatNoDocumentSays)
{
    Tiff tiff;
    tiff.directory(5)
        .entry(0x010E, kAscii, 4, 0x00434241)
        .entry(0x8769, kLongType, 1, 90)
        .entry(0x8825, kLongType, 1, 150);
    tiff.entry(0, 0, 0, 0).entry(0x9999, kAscii, 4, 0x005A5A5A).next(0).zeros(16);
    // Exif: a negative fraction, a float, a number with more digits than are shown, a maker note.
    tiff.directory(4).entry(0x9204, 10, 1, 180).entry(0x9205, 11, 1, 0x3F800000).entry(0x9286, kLongType, 2, 188);
    tiff.entry(0x927C, 7, 8, 196).next(0).zeros(6);
    tiff.directory(1).entry(0x001D, kAscii, 11, 208).next(0).zeros(12); // GPS
    tiff.number(0xFFFFFFFF, 4)
        .number(3, 4)
        .number(123456789, 4)
        .number(7, 4)
        .text("MAKERNOT")
        .text("data")
        .text("2024:05:06")
        .zeros(1);
    ASSERT_EQ(tiff.size(), 219U);
    Photograph photograph(tiff.photograph());
    const ExifContent before = exifContent(photograph.block());

    ASSERT_EQ(photograph.save(set(exifPath("/IFDE/IFD[@id='9286']"), "1.234568E+08,8")), "");
    ASSERT_EQ(photograph.save(set(kTitlePath, "A title")), "");
    ExifContent expected = before;
    expected.directories["IFD0/8769"].entries[3].bytes[4] = 8;
    ExifContent content = exifContent(photograph.block());
    auto& first = content.directories["IFD0"].entries;
    ASSERT_EQ(std::erase_if(first, [](const EntryContent& entry) { return entry.tag == 0x9C9B; }), 1);
    EXPECT_EQ(differences(expected, content, {}), std::vector<Phrase>());
    EXPECT_EQ(photograph.text(kTitlePath), "A title") << "it stands before the entry of tag 0";

    const auto has = [&](const std::string& text) {
        const Bytes all = photograph.content();
        return std::search(all.begin(), all.end(), text.begin(), text.end()) != all.end();
    };
    EXPECT_TRUE(has("data")) << "the maker note may lead to it";
    ASSERT_EQ(photograph.save(remove(exifPath("/IFD[@id='8825']"))), "");
    EXPECT_FALSE(has("2024:05:06"));
    ASSERT_EQ(photograph.save(remove(exifPath("/IFDE/MAKE"))), "");
    EXPECT_FALSE(has("MAKERNOT"));
    EXPECT_FALSE(has("data"));
}

TEST(ExifPatch, WritesValuesAsTheyAreTyped)
{
    const struct {
        const char* name;
        std::uint32_t type;
        Bytes old;
        const char* text;
        Bytes bytes; ///< of the value after the edit
    } cases[] = {
        {"the last byte of an array is not shown and stays", 1, {1, 2, 3}, "0506", {5, 6, 3}},
        {"as does that of undefined data shown in digits", 7, {'a', 9, 'b', 'c', 'd', 'e'}, "610A", {'a', 10, 'e'}},
        {"a negative number", 8, {1, 0}, "-5", {0xFB, 0xFF}},
        {"a number without a sign for a type that has one", 8, {1, 0}, "65531", {0xFB, 0xFF}},
        {"the greatest number", 4, {1, 0, 0, 0}, "4294967295", {0xFF, 0xFF, 0xFF, 0xFF}},
        {"two numbers stand in the entry", 3, {1, 0}, "2,3", {2, 0, 3, 0}},
        {"a negative fraction", 10, {1, 0, 0, 0, 2, 0, 0, 0}, "-1/2", {0xFF, 0xFF, 0xFF, 0xFF, 2, 0, 0, 0}},
        {"an empty text", 2, {'a', 'b', 0}, "", {0}},
        {"a short undefined text has no terminator", 7, {'0', '2', '2', '0'}, "0231", {'0', '2', '3', '1'}},
    };
    for (const auto& c : cases) {
        const auto size = std::map<std::uint32_t, std::uint32_t>{{3, 2}, {4, 4}, {8, 2}, {10, 8}}[c.type];
        Tag tag = ExifBytes::raw(0x9290, static_cast<std::uint16_t>(c.type), c.old);
        tag.count = size > 0 ? static_cast<std::uint32_t>(c.old.size()) / size : tag.count;
        ExifBytes built;
        built.ifd0({}).exif({tag});
        Photograph photograph(JpegBytes().exif(built).end());
        const std::string path = exifPath("/IFDE/IFD[@id='9290']");
        EXPECT_EQ(photograph.save([&](XmlDocument& document) { document.selectSingleNode(path).setText(c.text); }), "")
            << c.name;
        ExifContent content = exifContent(photograph.block());
        EXPECT_EQ(content.directories["IFD0/8769"].entries.front().bytes, c.bytes) << c.name;
    }
}

TEST(ExifPatch, WritesWindowsTextsInTheirOrderWhateverThatOfTheBlock)
{
    Photograph photograph(fullPhotograph(false));
    ASSERT_EQ(photograph.save(set(kTitlePath, "\u6E56 \U0001F600")), "");
    const std::vector<EntryContent> entries = exifContent(photograph.block()).directories["IFD0"].entries;
    const auto title = std::ranges::find(entries, 0x9C9B, &EntryContent::tag);
    ASSERT_NE(title, entries.end());
    EXPECT_EQ(title->bytes, (Bytes{0x56, 0x6E, 0x20, 0, 0x3D, 0xD8, 0x00, 0xDE, 0, 0}));
    EXPECT_FALSE(photograph.block().littleEndian());
}

TEST(ExifPatch, FillsASegmentToItsLastByteAndUsesPadding)
{
    const std::uint32_t head = 8 + 2 + 12 + 4;
    const auto most = static_cast<std::uint32_t>(kMostExifBytes);
    const auto photographWith = [&](std::uint32_t valueSize, std::size_t padding) {
        Tiff tiff;
        tiff.directory(1).entry(0x010E, 7, valueSize, head).next(0).text(std::string(valueSize, 'x')).zeros(padding);
        return tiff.photograph();
    };
    // Twelve bytes of the entry move the directory to the end; the title takes its old place.
    const std::uint32_t need = 2 + 2 * 12 + 4;
    const auto titleFits = [&](std::uint32_t valueSize, std::size_t padding) {
        return Photograph(photographWith(valueSize, padding)).save(set(kTitlePath, "Title"));
    };
    EXPECT_EQ(titleFits(most - head - need - 1, 0), "") << "an odd end is made even";
    EXPECT_NE(titleFits(most - head - need + 1, 0).find("1 byte longer"), std::string::npos);
    EXPECT_EQ(titleFits(most - head - need - 101, 101), "");
}

TEST(ExifPatch, RefusesWhatItCannotProve)
{
    Tiff tiff;
    tiff.directory(4).entry(0x010E, kAscii, 100, 4000).entry(0x8769, kLongType, 1, 62).entry(0x8825, kLongType, 1, 122);
    tiff.entry(0x9999, kLongType, 1, 1).next(140);
    tiff.directory(4)
        .entry(0x9214, 3, 1, 5)
        .entry(0x9205, 12, 1, 204)
        .entry(0xA302, 7, 8, 212)
        .entry(0x9000, 7, 4, 0)
        .next(0)
        .zeros(6);
    tiff.directory(1).entry(1, 1, 1, 0).next(0); // GPS, and what an entry of type IFD leads to
    tiff.directory(4)
        .entry(0x0103, 3, 1, 1)
        .entry(0x0111, kLongType, 1, 200)
        .entry(0x0117, kLongType, 1, 4)
        .entry(0x011A, 3, 1, 1)
        .next(0);
    tiff.zeros(6).text("strp").zeros(16);
    const Edit setThumbnail = [](XmlDocument& document) {
        document.selectSingleNode("/JPEG/Exif/IFD1/THUM").setText("00");
    };
    const Edit moveImage = [](XmlDocument& document) {
        AttributeSet(document.selectSingleNode("/JPEG/IMG"), "offset", "5");
    };
    const struct {
        const char* name;
        Edit edit;
        const char* reason; ///< a part of it
    } cases[] = {
        {"a number out of range", set(exifPath("/IFDE/IFD[@id='9214']"), "70000"), "IFDE 9214: Overflow"},
        {"not a number", set(exifPath("/IFDE/IFD[@id='9214']"), "five"), "IFDE 9214: Type mismatch"},
        {"a double", set(exifPath("/IFDE/IFD[@id='9205']"), "1/2"), "IFDE 9205"},
        {"a value of which the document has only the place", set(exifPath("/IFDE/IFD[@id='A302']"), "11111111"),
         "IFDE A302"},
        {"a value past the end of the segment", set(exifPath("/IFD[@id='010E']"), "text"), "Exif 010E"},
        {"a text that would not read back", set(exifPath("/IFDE/IFD[@id='9000']"), "a\tb"), "IFDE 9000"},
        {"a character that the file has no byte for", set(exifPath("/IFD[@id='010F']"), "\u6E56"),
         "would read ? instead of"},
        {"the place of a directory",
         [](XmlDocument& document) { document.selectSingleNode("/JPEG/Exif/IFD[@id='8825']").setText("8"); },
         "Exif 8825"},
        {"an image in strips", setThumbnail, "THUM"},
        {"another image", moveImage, "changed after it was read"},
    };
    for (const auto& c : cases) {
        Photograph photograph(tiff.photograph());
        const std::string reason = photograph.save(c.edit);
        EXPECT_NE(reason.find(c.reason), std::string::npos) << c.name << ": " << reason;
    }
}

TEST(ExifPatch, MakesNoDirectoryThatTheFileHasAlready)
{
    Tiff tiff; // which a document does not show, as the entry that leads there has a type of its own
    tiff.directory(1).entry(0x8769, 13, 1, 26).next(0).directory(1).entry(0x9000, 7, 4, 0x30323230).next(0);
    Photograph photograph(tiff.photograph());
    EXPECT_EQ(photograph.save(set(exifPath("/IFDE/IFD[@id='9003']"), "2024:05:06 07:08:09")),
              "IFDE: The file has one that could not be read");
}

TEST(ExifPatch, ChangesOneOfTwoSegmentsAndKeepsTheRestOfAnXmpPacket)
{
    ExifBytes first;
    first.ifd0({first.ascii(0x010F, "First")});
    ExifBytes second;
    second.ifd0({second.ascii(0x010F, "Second")});
    const Bytes packet =
        bytes("http://ns.adobe.com/xap/1.0/") + Bytes{0} + bytes("<x/>") + Bytes{0, 'r', 'e', 's', 't'};
    Photograph photograph(JpegBytes().exif(first).exif(second).segment(0xFFE1, packet).end());
    const Bytes before = photograph.content();
    ASSERT_EQ(photograph.save([](XmlDocument& document) {
        document.selectNodes("/JPEG/Exif/IFD")[1].setText("Third");
        document.selectSingleNode("/JPEG/Exif1").setText("<y/>");
    }),
              "");
    EXPECT_EQ(photograph.receipt.changed, 2U);
    const Bytes content = photograph.content();
    const std::string rest("<y/>\0rest", 9);
    EXPECT_NE(std::search(content.begin(), content.end(), rest.begin(), rest.end()), content.end());
    EXPECT_EQ(Bytes(content.begin(), content.begin() + 30), Bytes(before.begin(), before.begin() + 30));
}

} // namespace ovisto::test
