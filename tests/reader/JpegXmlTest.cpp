#include "reader/JpegXml.h"
#include "common/xml/XmlDocument.h"
#include "jpeg/ByteReader.h"
#include "support/JpegBytes.h"

#include <gtest/gtest.h>

#include <random>
#include <regex>

namespace ovisto::test {

namespace {

Translation translate(const Bytes& jpeg, const KeepOptions& keep = {})
{
    const TemporaryFolder folder;
    return JpegXml().XMLtranslate(folder.file("a.jpg", jpeg), keep);
}

/// The document of a file without its first line, which names a temporary folder.
std::string body(const Bytes& jpeg, const KeepOptions& keep = {})
{
    const Translation translation = translate(jpeg, keep);
    EXPECT_FALSE(translation.error) << translation.error->description;
    return translation.text.substr(translation.text.find("\r\n") + 2);
}

std::string between(const std::string& text, const std::string& start, const std::string& end)
{
    const auto from = text.find(start);
    const auto to = text.find(end, from);
    return from == std::string::npos || to == std::string::npos
               ? "nothing in " + text
               : text.substr(from + start.size(), to - from - start.size());
}

/// How one entry of the first directory is rendered.
std::string entryText(const Tag& tag, bool littleEndian = true)
{
    ExifBytes exif(littleEndian);
    exif.ifd0({tag});
    return between(body(JpegBytes().exif(exif).end()), "d=\"7\">\r\n", "\r\n</Exif>");
}

/// Whether the elements of a document nest. Wide texts may hold controls, which XML has no way to say.
bool isWellFormed(const std::string& text)
{
    XmlDocument document;
    return !document.loadText(std::regex_replace(text, std::regex("&#[0-9]+;"), ""));
}

} // namespace

TEST(JpegXml, TellsAPhotographInFullInEitherByteOrder)
{
    for (const bool littleEndian : {true, false}) {
        const Bytes jpeg = fullPhotograph(littleEndian);
        const std::string expected = "<APP0 d=\"1\">4A46494600010100000100010000</APP0>\r\n"
                                     "<Exif id=\"FFE1\" byteSeq=\"" +
                                     std::string(littleEndian ? "II" : "MM") +
                                     "\" d=\"7\">\r\n"
                                     "<IFD id=\"010F\" d=\"2\">Acme</IFD>\r\n"
                                     "<IFD id=\"0110\" d=\"2\">M1</IFD>\r\n"
                                     "<IFD id=\"0112\" d=\"3\">1</IFD>\r\n"
                                     "<IFD id=\"011A\" d=\"5\">180/1</IFD>\r\n"
                                     "<IFD id=\"8769\" d=\"4\">131</IFD>\r\n"
                                     "<IFD id=\"9C9B\" d=\"11\">H&#233;llo</IFD>\r\n"
                                     "<IFD id=\"9C9C\" d=\"11\">A&lt;B</IFD>\r\n"
                                     "<IFDE d=\"2\"><IFD id=\"829A\" d=\"5\">1/250</IFD>\r\n"
                                     "<IFD id=\"9000\" d=\"7\">0220</IFD>\r\n"
                                     "<IFD id=\"9003\" d=\"2\">2024:05:06 07:08:09</IFD>\r\n"
                                     "<IFD id=\"9101\" d=\"7\">01020300</IFD>\r\n"
                                     "<IFD id=\"9214\" d=\"3\">10,20,30</IFD>\r\n"
                                     "<IFD id=\"927C\" d=\"7\">278</IFD>\r\n"
                                     "<IFD id=\"A005\" d=\"4\">260</IFD>\r\n"
                                     "<MAKE d=\"1\">DEADBEEF00</MAKE>\r\n"
                                     "</IFDE><IFDI d=\"2\"><IFD id=\"0001\" d=\"2\">R98</IFD>\r\n"
                                     "</IFDI><IFD1 d=\"2\"><IFD id=\"0103\" d=\"3\">6</IFD>\r\n"
                                     "<IFD id=\"0201\" d=\"4\">325</IFD>\r\n"
                                     "<IFD id=\"0202\" d=\"4\">5</IFD>\r\n"
                                     "<THUM d=\"1\">FFD801FFD9</THUM></IFD1></Exif>\r\n"
                                     "<Exif1 id=\"FFE1\" ns=\"http://ns.adobe.com/xap/1.0/\" d=\"2\">\r\n"
                                     "<![CDATA[<x:xmpmeta/>]]></Exif1>\r\n"
                                     "<APP1 id=\"FFDB\" d=\"1\">000102</APP1>\r\n"
                                     "<SOS d=\"1\">010100003F00</SOS>\r\n"
                                     "<IMG offset=\"" +
                                     std::to_string(jpeg.size() - 6) + "\" length=\"4\" d=\"1\"></IMG></JPEG>";
        EXPECT_EQ(body(jpeg), expected);
    }
}

TEST(JpegXml, NamesFolderAndFileEscaped)
{
    const TemporaryFolder folder;
    const std::string path = folder.file("é&Ж.jpg", JpegBytes().end());
    const std::string start = JpegXml().XMLtranslate(path).text;
    EXPECT_EQ(start.find("<JPEG d=\"1\" folder=\"" + folder.path("") + "\" fileName=\"&#233;&amp;?.jpg\">\r\n"), 0U);
}

TEST(JpegXml, RendersEachDataFormatByItsRule)
{
    const ExifBytes tiff;
    const auto ifd = [](const std::string& id, int d, const std::string& text) {
        return "<IFD id=\"" + id + "\" d=\"" + std::to_string(d) + "\">" + text + "</IFD>";
    };
    const struct {
        Tag tag;
        std::string text;
    } cases[] = {
        {ExifBytes::raw(0x0001, 1, {7}), ifd("0001", 1, "")},
        {ExifBytes::raw(0x0001, 1, {2, 2, 0, 0}), ifd("0001", 1, "020200")},
        {ExifBytes::raw(0x0001, 6, {1, 2, 3, 4, 5, 6}), ifd("0001", 6, "0102030405")},
        {ExifBytes::raw(0x9C9B, 1, {'H', 0, 0, 0}), ifd("9C9B", 11, "H")},
        {ExifBytes::raw(0x9C9F, 6, {'H', 0, 0x16, 0x04, 'i', 0, 0, 0}), ifd("9C9F", 11, "H?i")},
        {ExifBytes::raw(0x010E, 2, bytes("ABCD")), ifd("010E", 2, "ABCD")},
        {ExifBytes::raw(0x010E, 2, bytes("ABCDE")), ifd("010E", 2, "ABCD")},
        {ExifBytes::raw(0x010E, 2, {'A', 0, 'B', 'C', 'D', 0}), ifd("010E", 2, "A")},
        {ExifBytes::raw(0x010E, 2, {'l', '\r', '\n', 3, 0x93, 0}), ifd("010E", 2, "l&#13;&#10;&#147;")},
        {tiff.shorts(0x0102, {}), ifd("0102", 3, "")},
        {tiff.shorts(0x0102, {8, 65535}, 8), ifd("0102", 8, "8,65535")},
        {tiff.shorts(0x0102, {8, 9, 10}), ifd("0102", 3, "8,9,10")},
        {tiff.longs(0x0100, {0xFFFFFFFF}, 9), ifd("0100", 9, "4.294967E+09")},
        {tiff.longs(0x0100, {1, 12345678}), ifd("0100", 4, "1,1.234568E+07")},
        {tiff.rationals(0x011A, {1, 2, 3, 4}), ifd("011A", 5, "1/2,3/4")},
        {tiff.rationals(0x9204, {0xFFFFFFFF, 3}, 10), ifd("9204", 10, "4.294967E+09/3")},
        {ExifBytes::raw(0x9286, 7, bytes("ASCII") + Bytes{0, 0, 0, 'x', 'y'}), ifd("9286", 7, "ASCII")},
        {ExifBytes::raw(0x9286, 7, {'a', '\n', 'b'}), ifd("9286", 1, "610A")},
        {ExifBytes::raw(0x9286, 7, {'a', 'b', 'c', '\t', 'e', 'f'}), ifd("9286", 1, "6162630965")},
        {ExifBytes::raw(0xA300, 7, {3}), ifd("A300", 7, "03000000")},
        {ExifBytes::raw(0xA302, 7, {1, 2, 3, 4, 5, 6, 7, 8}), ifd("A302", 7, "1A000000")},
        {ExifBytes::raw(0x0001, 12, Bytes(8)), ifd("0001", 12, "")},
        {ExifBytes::raw(0x0001, 11, Bytes(4)), ifd("0001", 11, "")},
        {ExifBytes::raw(0x0001, 129, bytes("utf")), ifd("0001", 129, "")},
        {{0x0001, 1, 70000, bytes("long!")}, ifd("0001", 1, "")},
    };
    for (const auto& c : cases)
        EXPECT_EQ(entryText(c.tag), c.text);
    const Bytes wide = {0, 'H', 0, 'i', 0, 0};
    EXPECT_EQ(entryText(ExifBytes::raw(0x9C9B, 1, wide), false), ifd("9C9B", 11, "Hi"));
}

TEST(JpegXml, EndsADirectoryAtAZeroTagAndRefusesOver200Entries)
{
    ExifBytes exif;
    exif.ifd0({exif.shorts(0x0112, {1}), exif.shorts(0, {2}), exif.shorts(0x0113, {3})});
    EXPECT_EQ(between(body(JpegBytes().exif(exif).end()), "\"7\">\r\n", "</Exif>"),
              "<IFD id=\"0112\" d=\"3\">1</IFD>\r\n");

    for (const std::uint16_t count : {std::uint16_t{200}, std::uint16_t{201}}) {
        std::vector<Tag> tags;
        for (std::uint16_t i = 1; i <= count; ++i)
            tags.push_back(exif.shorts(i, {i}));
        ExifBytes many;
        many.ifd0(tags);
        const std::string content = between(body(JpegBytes().exif(many).end()), "\"7\">\r\n", "</Exif>");
        if (count == 200) {
            EXPECT_TRUE(content.ends_with("<IFD id=\"00C8\" d=\"3\">200</IFD>\r\n"));
        } else {
            EXPECT_EQ(content.find("IFD directory seems corrupted: more than 200 entries! C900010003000100"), 0U);
            EXPECT_EQ(content.size(), 54U + 200U);
        }
    }
}

TEST(JpegXml, LeavesOutWhatIsNotToBeKeptAndSaysSo)
{
    const Bytes jpeg = fullPhotograph(true);
    const Bytes plain = JpegBytes().app0().end();
    const struct {
        KeepOptions keep;
        const char* leftOut;
    } cases[] = {
        {{.pCodifyMakerNote = false}, "927C"}, {{.pCodifyThumb = false}, "IFD1"}, {{.pCodifyExif1 = false}, "Exif1"}};
    for (const auto& c : cases) {
        const Translation translation = translate(jpeg, c.keep);
        EXPECT_TRUE(translation.ChangesMade) << c.leftOut;
        EXPECT_EQ(translation.text.find(c.leftOut), std::string::npos) << c.leftOut;
        EXPECT_FALSE(translate(plain, c.keep).ChangesMade) << c.leftOut;
    }
    EXPECT_FALSE(translate(jpeg).ChangesMade);
    EXPECT_EQ(body(jpeg, {.pCodifyMakerNote = false}).find("MAKE"), std::string::npos);
}

TEST(JpegXml, SkipsTheOtherDirectoriesAfterAnErrorInTheFirst)
{
    ExifBytes exif;
    exif.ifd0({{0x0001, 3, 0x7FFFFFFF, Bytes(5)}}).exif({exif.shorts(0x8822, {1})});
    const std::string text = body(JpegBytes().exif(exif).end());
    EXPECT_EQ(text.find("IFDE"), std::string::npos);
    EXPECT_NE(text.find("<IFD id=\"0001\" d=\"3\"></IFD>"), std::string::npos) << "the entry itself stays";
}

TEST(JpegXml, TakesThumbnailsInStripsFromTheirFirstStripOn)
{
    ExifBytes exif;
    exif.ifd0({}).ifd1({exif.longs(0x0111, {52, 54}), exif.shorts(0x0117, {2, 3})});
    const std::string text = body(JpegBytes().segment(0xFFE1, exif.payload() + Bytes{1, 2, 3, 4, 5}).end());
    EXPECT_NE(text.find("<IFD id=\"0117\" d=\"3\">2,3</IFD>"), std::string::npos);
    EXPECT_EQ(between(text, "<THUM d=\"1\">", "</THUM>"), "0102030405");
}

TEST(JpegXml, TellsSegmentsOfAnyMarkerUpToTheScan)
{
    const Bytes jpeg = JpegBytes().segment(0xFFFE, bytes("hi")).segment(0xFFD9, {}).segment(0xFF01, {5}).end({});
    EXPECT_EQ(body(jpeg).find("<APP1 id=\"FFFE\" d=\"1\">6869</APP1>\r\n<APP1 id=\"FFD9\" d=\"1\"></APP1>\r\n"
                              "<APP1 id=\"FF01\" d=\"1\">05</APP1>\r\n<SOS d=\"1\">"),
              0U);
    Bytes headerOnly = JpegBytes().end({});
    headerOnly.resize(headerOnly.size() - 2);
    EXPECT_NE(
        body(headerOnly).find("<IMG offset=\"" + std::to_string(headerOnly.size() + 1) + "\" length=\"-3\" d=\"1\">"),
        std::string::npos);
}

TEST(JpegXml, ReportsTheFourErrorsWithTheTextSoFar)
{
    const TemporaryFolder folder;
    const std::string missing = folder.path("none.jpg");
    const struct {
        std::string path;
        int number;
        std::string description;
        std::string text;
    } cases[] = {
        {missing, kOpenFailed, "File not found  file=" + missing, ""},
        {folder.file("empty", Bytes{}), kStructureError,
         "Not a JPEG file - hFFD8 expected at start of file " + folder.path("empty"), ""},
        {folder.file("marker", JpegBytes().app0().raw({0, 0, 0, 0}).unfinished()), kStructureError,
         "Header seems corrupted - unknown Marker 0 " + folder.path("marker"),
         "<APP0 d=\"1\">4A46494600010100000100010000</APP0>\r\n</JPEG>"},
        {folder.file("noscan", JpegBytes().raw({0xFF, 0xDB, 0, 9, 1}).unfinished()), kStructureError,
         "No StartOfStream marker found " + folder.path("noscan"),
         "<APP1 id=\"FFDB\" d=\"1\">01000000000000</APP1>\r\n</JPEG>"},
    };
    for (const auto& c : cases) {
        const Translation translation = JpegXml().XMLtranslate(c.path);
        ASSERT_TRUE(translation.error) << c.path;
        EXPECT_EQ(translation.error->number, c.number);
        EXPECT_EQ(translation.error->description, c.description);
        const auto firstLine = translation.text.find("\r\n");
        EXPECT_EQ(firstLine == std::string::npos ? "" : translation.text.substr(firstLine + 2), c.text);
    }
}

TEST(JpegXml, SurvivesAFileCutShortAtAnyLength)
{
    const TemporaryFolder folder;
    for (const bool littleEndian : {true, false}) {
        const Bytes whole = fullPhotograph(littleEndian);
        for (std::size_t length = 0; length < whole.size(); ++length) {
            const Translation translation = JpegXml().XMLtranslate(
                folder.file("a.jpg", Bytes(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length))));
            if (length >= 2) {
                EXPECT_TRUE(isWellFormed(translation.text)) << length;
            }
            if (length < whole.size() - 17) { // into the scan header
                EXPECT_TRUE(translation.error) << length;
            }
        }
    }
}

TEST(JpegXml, SurvivesSpoiltBytes)
{
    const TemporaryFolder folder;
    std::mt19937 random(20240506);
    const Bytes whole = fullPhotograph(true);
    for (int round = 0; round < 3000; ++round) {
        Bytes spoilt = whole;
        for (int i = 0; i < 4; ++i)
            spoilt[random() % (spoilt.size() - 8)] = static_cast<std::uint8_t>(random() % 5 == 0 ? 0xFF : random());
        const Translation translation = JpegXml().XMLtranslate(folder.file("a.jpg", spoilt));
        EXPECT_LT(translation.text.size(), static_cast<std::size_t>(textLimit(2000)));
        EXPECT_TRUE(translation.text.empty() || translation.text.ends_with("</JPEG>"));
    }
}

TEST(JpegXml, GivesUpOnDirectoriesThatTellTheSameBytesAgainAndAgain)
{
    ExifBytes exif;
    std::vector<Tag> tags;
    for (std::uint16_t i = 1; i <= 200; ++i)
        tags.push_back({i, 1, 60000, Bytes(5)});
    exif.ifd0(tags);
    JpegBytes jpeg;
    for (int i = 0; i < 20; ++i)
        jpeg.exif(exif);
    const Translation translation = translate(jpeg.end());
    ASSERT_TRUE(translation.error);
    EXPECT_EQ(translation.error->number, kOutOfMemory);
    EXPECT_TRUE(translation.text.ends_with("</Exif>\r\n</JPEG>"));
}

} // namespace ovisto::test
