// SPDX-License-Identifier: MIT

#include "collection/DocumentSaving.h"
#include "document/MetadataDocument.h"
#include "document/TagDictionary.h"
#include "support/JpegBytes.h"
#include "support/RecordingReporter.h"
#include "support/Rewriting.h"
#include "writer/ExifLayout.h"

#include <gtest/gtest.h>

#include <random>

namespace ovisto::test {

namespace {

/// A document with this Exif content over the file that writing() makes.
std::string exifDocument(const std::string& content)
{
    return "<JPEG d=\"1\"><Exif id=\"FFE1\" byteSeq=\"MM\" d=\"7\">" + content +
           "</Exif><SOS d=\"1\">0102</SOS><IMG offset=\"9\" length=\"2\" d=\"1\"></IMG></JPEG>";
}

std::string ifd(const std::string& id, int d, const std::string& text)
{
    return "<IFD id=\"" + id + "\" d=\"" + std::to_string(d) + "\">" + text + "</IFD>";
}

const Bytes kOldFile = {0xFF, 0xD8, 0xFF, 0xDA, 0, 4, 'o', 'l', 1, 2, 3, 0xFF, 0xD9};

struct Written {
    int error = 0;
    std::vector<std::string> contexts;
    Bytes file;
    std::vector<std::string> names;
};

/// Writes the document over the old file.
Written writing(const std::string& text)
{
    const TemporaryFolder folder;
    const std::string path = folder.file("a.jpg", kOldFile);
    RecordingReporter reporter;
    XmlDocument document = documentOf(text);
    Written written;
    written.error =
        errorNumberOf([&] { JpegDocument(reporter, documentReader(Reading::Basic)).WriteJpeg(document, path); });
    for (std::string context : reporter.contexts) {
        for (auto at = context.find(folder.path("")); at != std::string::npos; at = context.find(folder.path("")))
            context.erase(at, folder.path("").size());
        written.contexts.push_back(context);
    }
    written.file = contentOf(path);
    written.names = folder.names();
    return written;
}

/// The TIFF structure that is written for this Exif content.
Bytes tiff(const std::string& content)
{
    const Written written = writing(exifDocument(content));
    EXPECT_EQ(written.error, 0) << content;
    if (written.error != 0)
        return {};
    const std::size_t size = 256 * written.file[4] + written.file[5] - 8U;
    return {written.file.begin() + 12, written.file.begin() + 12 + static_cast<std::ptrdiff_t>(size)};
}

const Bytes kTiffHeader = {'I', 'I', 42, 0, 8, 0, 0, 0};

} // namespace

TEST(WriteJpeg, WritesSegmentsInOrderAndCopiesTheImage)
{
    const Written written =
        writing("<JPEG>\r\n<APP0>4A46</APP0>\r\n<APP1 id='FFDB'>00ABCD5</APP1><Exif1 id='FFE1' ns='n'>\r\n<![CDATA[t]]>"
                "</Exif1><SOS>0102</SOS><IMG offset='9' length='2'/></JPEG>");
    EXPECT_EQ(written.error, 0);
    EXPECT_EQ(written.file,
              (Bytes{0xFF, 0xD8, 0xFF, 0xE0, 0,   4, 0x4A, 0x46, 0xFF, 0xDB, 0, 6, 0x00, 0xAB, 0xCD, 0x55, 0xFF, 0xE1,
                     0,    6,    'n',  0,    't', 0, 0xFF, 0xDA, 0,    4,    1, 2, 1,    2,    3,    0xFF, 0xD9}));
    EXPECT_EQ(written.names, std::vector<std::string>{"a.jpg"});
}

TEST(WriteJpeg, WritesOtherApp1SegmentsWithTheLengthThatTheySay)
{
    for (const std::string& ns : {std::string(), std::string(28, 'n')}) {
        for (const std::string& text : {std::string(), std::string("\x80"), std::string(1000, 't')}) {
            const bool euro = text == "\x80";
            const Written written = writing("<JPEG><Exif1 ns='" + ns + "'>" + (euro ? "<![CDATA[€]]>" : text) +
                                            "</Exif1><SOS>0102</SOS><IMG offset='9' length='2'/></JPEG>");
            const std::size_t length = 256 * written.file[4] + written.file[5];
            EXPECT_EQ(length, ns.size() + text.size() + 4);
            EXPECT_EQ(written.file.size(), 2 + 2 + length + 6 + 3 + 2) << "nothing more, or the next marker is lost";
        }
    }
}

TEST(WriteJpeg, WritesAllTextOfOtherApp1SegmentsButTheLineBreakOfTheLayout)
{
    const struct {
        const char* content;
        std::string text;
        int error = 0;
    } cases[] = {
        {"\r\n<![CDATA[<x/>]]>", "<x/>"},
        {"\r\nx", "x"},
        {"<![CDATA[\nx]]>", "\nx"},
        {"\n\n<![CDATA[x]]>", "\nx"},
        {"a<![CDATA[b]]>c<!-- a note --><![CDATA[d]]>\n", "abcd\n"},
        {"\n<x>1</x>", "", kInvalidCall},
    };
    for (const auto& c : cases) {
        for (const WritingWay way : {WritingWay::Rebuild, WritingWay::Keep}) {
            const TemporaryFolder folder;
            const std::string path = folder.file("a.jpg", fullPhotograph(true));
            std::string text = JpegXml().XMLtranslate(path).text;
            const std::string old = "\r\n<![CDATA[<x:xmpmeta/>]]>";
            text.replace(text.find(old), old.size(), c.content);
            XmlDocument document = documentOf(text);
            RecordingReporter reporter;
            EXPECT_EQ(errorNumberOf([&] { saveNow(document, path, way, reporter); }), c.error) << c.content;
            const std::string written = c.error == 0 ? c.text : "<x:xmpmeta/>";
            EXPECT_NE(JpegXml().XMLtranslate(path).text.find("<![CDATA[" + written + "]]>"), std::string::npos)
                << c.content;
        }
    }
}

TEST(WriteExif, WritesEachDataTypeInsideTheEntryOrOutside)
{
    const struct {
        std::string entry;
        Bytes directory; // of one entry, without its count; offset 26 is the first byte behind it
    } cases[] = {
        {ifd("0112", 3, "1"), {0x12, 1, 3, 0, 1, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0}},
        {ifd("0112", 8, "1,2"), {0x12, 1, 8, 0, 2, 0, 0, 0, 26, 0, 0, 0, 0, 0, 0, 0, 1, 0, 2, 0}},
        {ifd("0100", 4, "1E+07"), {0, 1, 4, 0, 1, 0, 0, 0, 0x80, 0x96, 0x98, 0, 0, 0, 0, 0}},
        {ifd("011A", 5, "72/1"), {0x1A, 1, 5, 0, 1, 0, 0, 0, 26, 0, 0, 0, 0, 0, 0, 0, 72, 0, 0, 0, 1, 0, 0, 0}},
        {ifd("010F", 2, "AB"), {0x0F, 1, 2, 0, 4, 0, 0, 0, 'A', 'B', 0, 0, 0, 0, 0, 0}},
        {ifd("010F", 2, ""), {0x0F, 1, 2, 0, 4, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
        {ifd("010F", 2, "AB&#147;D"), {0x0F, 1, 2, 0, 5, 0, 0, 0, 26, 0, 0, 0, 0, 0, 0, 0, 'A', 'B', 0x93, 'D', 0}},
        {ifd("9000", 7, "0220"), {0, 0x90, 7, 0, 5, 0, 0, 0, 26, 0, 0, 0, 0, 0, 0, 0, '0', '2', '2', '0', 0}},
        {ifd("9101", 7, "01020300"), {1, 0x91, 7, 0, 4, 0, 0, 0, 1, 2, 3, 0, 0, 0, 0, 0}},
        {ifd("9C9B", 11, "Hi"), {0x9B, 0x9C, 1, 0, 6, 0, 0, 0, 26, 0, 0, 0, 0, 0, 0, 0, 'H', 0, 'i', 0, 0, 0}},
        {ifd("9C9B", 11, ""), {0x9B, 0x9C, 1, 0, 2, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}},
        {ifd("0001", 6, "0102030405"), {1, 0, 6, 0, 5, 0, 0, 0, 26, 0, 0, 0, 0, 0, 0, 0, 1, 2, 3, 4, 5}},
        {ifd("0001", 1, "01020304"), {1, 0, 1, 0, 4, 0, 0, 0, 1, 2, 3, 4, 0, 0, 0, 0}},
        {ifd("0001", 9, "1,2"), {1, 0, 9, 0, 2, 0, 0, 0, 26, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 2, 0, 0, 0}},
        {ifd("0001", 10, "1/2"), {1, 0, 10, 0, 1, 0, 0, 0, 26, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 2, 0, 0, 0}},
        {ifd("0001", 12, ""), {1, 0, 12, 0, 0, 0, 0, 0, 26, 0, 0, 0, 0, 0, 0, 0}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(tiff(c.entry), kTiffHeader + (Bytes{1, 0} + c.directory)) << c.entry;
    }
}

TEST(WriteExif, GivesAnUnknownTypeThePlaceOfTheEntryBeforeIt)
{
    XmlDocument document = documentOf(
        exifDocument(ifd("0112", 3, "1") + ifd("0001", 12, "") + ifd("011A", 5, "1/1") + ifd("0002", 129, "ab")));
    RecordingReporter reporter;
    layOutExif(document.selectSingleNode("//Exif"), reporter);
    std::string places;
    for (const XmlNode& entry : document.selectNodes("//IFD"))
        places += entry.attribute("s") + ":" + entry.attribute("l") + " ";
    EXPECT_EQ(places, "1:1 1:0 0:1 0:2 ");
}

TEST(WriteExif, PlacesDirectoriesMakerNoteAndThumbnailBehindEachOther)
{
    const std::string content = ifd("8769", 4, "9999") + "<IFDE>" + ifd("927C", 7, "1") + ifd("A005", 4, "1") +
                                "<MAKE>AABBCC</MAKE></IFDE><IFDI>" + ifd("0001", 2, "R98") + "</IFDI><IFD1>" +
                                ifd("0201", 4, "1") + ifd("0202", 4, "1") + "<THUM>FFD8</THUM></IFD1>";
    XmlDocument document = documentOf(exifDocument(content));
    RecordingReporter reporter;
    const auto text = [&](const char* path) { return document.selectSingleNode(path).text(); };
    for (int time = 0; time < 2; ++time) {
        EXPECT_EQ(layOutExif(document.selectSingleNode("//Exif"), reporter), 109) << "twice is the same as once";
        EXPECT_EQ(text("//IFD[@id='8769']"), "26");
        EXPECT_EQ(text("//IFD[@id='A005']"), "56");
        EXPECT_EQ(text("//IFD[@id='927C']"), "74");
        EXPECT_EQ(document.selectSingleNode("//IFD[@id='927C']").attribute("l"), "3");
        EXPECT_EQ(document.selectSingleNode("//Exif").attribute("lo"), "77");
        EXPECT_EQ(text("//IFD[@id='0201']"), "107");
        EXPECT_EQ(text("//IFD[@id='0202']"), "2");
    }
    const Bytes written = tiff(content);
    ASSERT_EQ(written.size(), 109U);
    EXPECT_EQ(Bytes(written.begin() + 74, written.begin() + 77), (Bytes{0xAA, 0xBB, 0xCC}));
    EXPECT_EQ(Bytes(written.begin() + 107, written.end()), (Bytes{0xFF, 0xD8}));
    EXPECT_EQ(written[22], 77) << "the first directory links to the second";
}

TEST(WriteExif, PointsNowhereToWhatIsNotThereAndKeepsWhatNothingPointsTo)
{
    RecordingReporter reporter;
    const auto laidOut = [&](const std::string& content) {
        XmlDocument document = documentOf(exifDocument(content));
        layOutExif(document.selectSingleNode("//Exif"), reporter);
        return document;
    };
    EXPECT_EQ(laidOut(ifd("8769", 4, "77")).selectSingleNode("//IFD").text(), "0");
    EXPECT_EQ(laidOut("<IFDE>" + ifd("A005", 4, "7") + "</IFDE>").selectSingleNode("//IFD").text(), "0");
    EXPECT_EQ(laidOut("<IFDE>" + ifd("927C", 7, "7") + "</IFDE>").selectSingleNode("//IFD").text(), "0");
    EXPECT_EQ(laidOut("").selectSingleNode("//Exif").attribute("lo"), "0");
    const XmlDocument strips =
        laidOut("<IFD1>" + ifd("0111", 4, "7") + ifd("0117", 4, "7") + "<THUM>010203</THUM></IFD1>");
    EXPECT_EQ(strips.selectSingleNode("//IFD[@id='0111']").text(), "3") << "the length, where the offset belongs";
    EXPECT_EQ(strips.selectSingleNode("//IFD[@id='0117']").text(), "7");
    EXPECT_EQ(tiff("<IFDE><MAKE>AABB</MAKE></IFDE><IFD1><THUM>CC</THUM></IFD1>"),
              (kTiffHeader + Bytes{0, 0, 22, 0, 0, 0} + Bytes(6) + Bytes{0xAA, 0xBB} + Bytes(6) + Bytes{0xCC}));
    EXPECT_TRUE(reporter.contexts.empty());
}

TEST(WriteJpeg, LeavesTheOldFileAloneWhenAValueCannotBeWritten)
{
    const std::vector<std::string> exifFailed = {"Exif write failed", "~a.jpg write failed"};
    const auto with = [&](std::vector<std::string> first) {
        first.insert(first.end(), exifFailed.begin(), exifFailed.end());
        return first;
    };
    const struct {
        std::string document;
        int error;
        std::vector<std::string> contexts;
    } cases[] = {
        {exifDocument(ifd("0112", 3, "")), kTypeMismatch, with({"Data format 3 error:"})},
        {exifDocument(ifd("0112", 3, "70000")), kOverflow,
         with({"Temp file write integer 70000", "Data format 3 error:70000"})},
        {exifDocument(ifd("0112", 9, "-1")), kOverflow, with({"Temp file write long -1", "Data format 9 error:-1"})},
        {exifDocument(ifd("0112", 4, "4.294967E+09")), kOverflow, with({"Data format 4 error:4.294967E+09"})},
        {exifDocument(ifd("011A", 5, "72/1,72")), kTypeMismatch, with({"Data format 5 error:72/1,72"})},
        {exifDocument(ifd("9C9B", 11, "\u8349")), kOverflow,
         with({"Temp file write string", "Data format 11 error:\u8349"})},
        {exifDocument(ifd("0001", 1, std::string(140'000, '0'))), kOverflow, with({"Temp file write integer 70034"})},
        {exifDocument("<IFD id='0112' d='x'>1</IFD>"),
         kTypeMismatch,
         {"Exif section - calculate data length", "~a.jpg write failed"}},
        {"<JPEG><APP0>" + std::string(131'070, '0') + "</APP0></JPEG>",
         kOverflow,
         {"Temp file write integer 65537", "~a.jpg write failed"}},
        // Two bytes do not fill an entry.
        {exifDocument(ifd("0001", 1, "0102")), kInvalidCall, with({"Data format 1 error:0102"})},
        // One byte too many and one too few: the segment has its length, but what is between has moved.
        {exifDocument(ifd("C000", 1, "010203040") + ifd("C001", 1, "010203")), kInvalidCall,
         with({"Data format 1 error:010203040"})},
        {exifDocument("<IFDE><MAKE>0102030405060</MAKE></IFDE><IFD1><THUM>01020</THUM></IFD1>"), kInvalidCall,
         exifFailed},
        {exifDocument(ifd("0112", 3, "1") + ifd("0001", 12, "")), kInvalidCall, with({"Data format 12 error:"})},
        {"<JPEG><APP1 id='FFFE'>Hello</APP1></JPEG>", kInvalidCall, {"~a.jpg write failed"}},
        {"<JPEG><IMG offset='9' length='2'/><IMG offset='1' length='1'/></JPEG>",
         kInvalidCall,
         {"~a.jpg transfer of image from existing file failed"}},
        {"<JPEG><SOS>00</SOS></JPEG>", kObjectNotSet, {"~a.jpg transfer of image from existing file failed"}},
        {"<JPEG><IMG offset='9' length='-3'/></JPEG>",
         kInvalidCall,
         {"~a.jpg transfer of image from existing file failed"}},
    };
    for (const auto& c : cases) {
        const Written written = writing(c.document);
        EXPECT_EQ(written.error, c.error) << c.contexts.front();
        EXPECT_EQ(written.contexts, c.contexts);
        EXPECT_EQ(written.file, kOldFile) << c.contexts.front();
    }
}

TEST(WriteJpeg, EitherRefusesAValueOrWritesAFileThatCanBeRead)
{
    std::mt19937 random(7);
    const auto valueText = [&] {
        constexpr std::string_view kPieces[] = {"1", "00", "A", ",", "/", "é", "F", "255", " ", "-", "65536", "\x99"};
        std::string text;
        for (auto count = random() % 8; count > 0; --count)
            text += kPieces[random() % std::size(kPieces)];
        return text;
    };
    const TemporaryFolder folder;
    int written = 0;
    for (int round = 0; round < 2000; ++round) {
        const Bytes before = fullPhotograph(true);
        const std::string path = folder.file("a.jpg", before);
        XmlDocument document = loadDocument(path);
        const std::vector<XmlNode> entries = document.selectNodes("//IFD | //APP1 | //Exif1 | //MAKE | //THUM");
        for (int change = 0; change < 3; ++change) {
            XmlNode entry = entries[random() % entries.size()];
            entry.setText(valueText());
            if (entry.name() == "IFD")
                entry.setAttribute("d", std::to_string(random() % 14));
        }
        RecordingReporter reporter;
        if (errorNumberOf([&] { JpegDocument(reporter, documentReader(Reading::Basic)).WriteJpeg(document, path); }) !=
            0) {
            EXPECT_EQ(contentOf(path), before);
            EXPECT_FALSE(reporter.contexts.empty());
            continue;
        }
        ++written;
        const Translation translation = JpegXml().XMLtranslate(path);
        EXPECT_FALSE(translation.error) << inEnglish(translation.error->description) << document.xml();
        EXPECT_EQ(imageData(contentOf(path)), imageData(before));
    }
    EXPECT_GT(written, 200);
}

TEST(WriteJpeg, RefusesATextWithWhichTheFileCouldNotBeOpenedAgain)
{
    const struct {
        const char* path;
        const char* text;
        int error;
    } cases[] = {
        {"//IFD[@id='9C9B']", "first\vsecond", kInvalidCall}, // a line break in a text pasted from a word processor
        {"//IFD[@id='9C9B']", "first\r\n\tsecond", 0},
        {"//Exif1", "<a><![CDATA[b]]></a>", kInvalidCall},
        {"//Exif1", "<a>[[b]] ></a>", 0},
    };
    for (const auto& c : cases) {
        const TemporaryFolder folder;
        const std::string path = folder.file("a.jpg", fullPhotograph(true));
        XmlDocument document = loadDocument(path);
        document.selectSingleNode(c.path).setText(c.text);
        RecordingReporter reporter;
        EXPECT_EQ(
            errorNumberOf([&] { JpegDocument(reporter, documentReader(Reading::Basic)).WriteJpeg(document, path); }),
            c.error)
            << c.text;
        EXPECT_EQ(errorNumberOf([&] { loadDocument(path); }), 0) << c.text;
    }
}

TEST(WriteJpeg, RefusesAFileThatWasChangedAfterItWasRead)
{
    const TemporaryFolder folder;
    const std::string path = folder.file("a.jpg", fullPhotograph(true));
    XmlDocument document = loadDocument(path);
    const auto isRefused = [&](const Bytes& file, int error) {
        folder.file("a.jpg", file);
        RecordingReporter reporter;
        EXPECT_EQ(
            errorNumberOf([&] { JpegDocument(reporter, documentReader(Reading::Basic)).WriteJpeg(document, path); }),
            error);
        EXPECT_EQ(contentOf(path), file);
    };
    isRefused(JpegBytes().app0().end(), kInvalidCall);
    isRefused(fullPhotograph(true) + Bytes{0}, kInvalidCall);
    isRefused(bytes("no picture any more"), kInvalidCall);

    // One that was cut behind its scan header says that its image has less than no bytes.
    document = documentOf("<JPEG><SOS>6F6C</SOS><IMG offset='9' length='-3'/></JPEG>");
    isRefused({kOldFile.begin(), kOldFile.begin() + 8}, kTypeMismatch);
}

TEST(WriteJpeg, ReadsBackWhatItWrote)
{
    const TemporaryFolder folder;
    const std::string path = folder.file("a.jpg", fullPhotograph(true));
    const std::string before = JpegXml().XMLtranslate(path).text;
    RecordingReporter reporter;
    rewrite(path, reporter);
    const Bytes once = contentOf(path);
    EXPECT_EQ(JpegXml().XMLtranslate(path).text.substr(0, before.find("<IMG")), before.substr(0, before.find("<IMG")));
    rewrite(path, reporter);
    EXPECT_EQ(contentOf(path), once) << "the second time changes nothing";
}

} // namespace ovisto::test
