// SPDX-License-Identifier: MIT

#include "reader/JpegXml.h"
#include "common/system/posix/SystemCalls.h"
#include "common/text/Hex.h"
#include "common/xml/XmlDocument.h"
#include "support/JpegBytes.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <regex>
#include <span>
#include <string>
#include <vector>

#include <unistd.h>

namespace ovisto::test {

namespace {

Translation translate(const Bytes& jpeg, const KeepOptions& keep = {})
{
    const TemporaryFolder folder;
    return JpegXml().XMLtranslate(folder.file("a.jpg", jpeg), keep);
}

/// A document without its first line, which names a temporary folder.
std::string withoutFirstLine(const std::string& text)
{
    const auto end = text.find("\r\n");
    return end == std::string::npos ? text : text.substr(end + 2);
}

std::string body(const Bytes& jpeg, const KeepOptions& keep = {})
{
    const Translation translation = translate(jpeg, keep);
    EXPECT_FALSE(translation.error) << inEnglish(translation.error->description);
    return withoutFirstLine(translation.text);
}

/// What the Exif element of a file has in it, when `payload` is the segment.
std::string exifContent(const Bytes& payload)
{
    const std::string text = body(JpegBytes().segment(0xFFE1, payload).end());
    const auto start = text.find("\r\n") + 2;
    return text.substr(start, text.find("</Exif>") - start);
}

/// The element of an entry.
std::string ifd(std::uint16_t tag, int d, const std::string& text)
{
    return "<IFD id=\"" + hexNumber(tag, 4) + "\" d=\"" + std::to_string(d) + "\">" + text + "</IFD>\r\n";
}

/// Whether the elements of a document nest. Wide texts may hold controls, which XML has no way to say.
bool isWellFormed(const std::string& text)
{
    XmlDocument document;
    return !document.loadText(std::regex_replace(text, std::regex("&#[0-9]+;"), ""));
}

} // namespace

TEST(JpegXml, ReadsAPhotographInFullInEitherByteOrder)
{
    const TemporaryFolder folder;
    const std::string expected = "<JPEG d=\"1\" folder=\"" + folder.path("") + R"(" fileName="&#233;&amp;?.jpg">
<APP0 d="1">4A46494600010100000100010000</APP0>
<Exif id="FFE1" byteSeq="II" d="7">
<IFD id="010F" d="2">Acme</IFD>
<IFD id="0110" d="2">M1</IFD>
<IFD id="0112" d="3">1</IFD>
<IFD id="011A" d="5">180/1</IFD>
<IFD id="8769" d="4">131</IFD>
<IFD id="9C9B" d="11">H&#233;llo</IFD>
<IFD id="9C9C" d="11">A&lt;B</IFD>
<IFDE d="2"><IFD id="829A" d="5">1/250</IFD>
<IFD id="9000" d="7">0220</IFD>
<IFD id="9003" d="2">2024:05:06 07:08:09</IFD>
<IFD id="9101" d="7">01020300</IFD>
<IFD id="9214" d="3">10,20,30</IFD>
<IFD id="927C" d="7">278</IFD>
<IFD id="A005" d="4">260</IFD>
<MAKE d="1">DEADBEEF00</MAKE>
</IFDE><IFDI d="2"><IFD id="0001" d="2">R98</IFD>
</IFDI><IFD1 d="2"><IFD id="0103" d="3">6</IFD>
<IFD id="0201" d="4">325</IFD>
<IFD id="0202" d="4">5</IFD>
<THUM d="1">FFD801FFD9</THUM></IFD1></Exif>
<Exif1 id="FFE1" ns="http://ns.adobe.com/xap/1.0/" d="2">
<![CDATA[<x:xmpmeta/>]]></Exif1>
<APP1 id="FFDB" d="1">000102</APP1>
<SOS d="1">010100003F00</SOS>
<IMG offset="423" length="4" d="1"></IMG></JPEG>)";
    for (const char* byteOrder : {"II", "MM"}) {
        std::string text = std::regex_replace(expected, std::regex("\n"), "\r\n");
        text.replace(text.find("II"), 2, byteOrder);
        const std::string path = folder.file("é&Ж.jpg", fullPhotograph(byteOrder == std::string("II")));
        EXPECT_EQ(JpegXml().XMLtranslate(path).text, text);
    }
}

TEST(JpegXml, RendersEachDataFormatByItsRule)
{
    const ExifBytes tiff;
    const struct {
        Tag tag;
        int d;
        const char* text;
    } cases[] = {
        {ExifBytes::raw(0x0001, 1, {7}), 1, ""},
        {ExifBytes::raw(0x0001, 1, {2, 2, 0, 0}), 1, "020200"},
        {ExifBytes::raw(0x0001, 6, {1, 2, 3, 4, 5, 6}), 6, "0102030405"},
        {ExifBytes::raw(0x9C9B, 1, {'H', 0, 0, 0}), 11, "H"},
        {ExifBytes::raw(0x9C9F, 6, {'H', 0, 0x16, 0x04, 'i', 0, 0, 0}), 11, "H?i"},
        {ExifBytes::raw(0x010E, 2, bytes("ABCD")), 2, "ABCD"},
        {ExifBytes::raw(0x010E, 2, bytes("ABCDE")), 2, "ABCD"},
        {ExifBytes::raw(0x010E, 2, {'A', 0, 'B', 'C', 'D', 0}), 2, "A"},
        {ExifBytes::raw(0x010E, 2, {'l', '\r', '\n', 3, 0x93, 0}), 2, "l&#13;&#10;&#147;"},
        {tiff.shorts(0x0102, {}), 3, ""},
        {tiff.shorts(0x0102, {8, 65535}, 8), 8, "8,65535"},
        {tiff.shorts(0x0102, {8, 9, 10}), 3, "8,9,10"},
        {tiff.longs(0x0100, {0xFFFFFFFF}, 9), 9, "4.294967E+09"},
        {tiff.longs(0x0100, {1, 12345678}), 4, "1,1.234568E+07"},
        {tiff.rationals(0x011A, {1, 2, 3, 4}), 5, "1/2,3/4"},
        {tiff.rationals(0x9204, {0xFFFFFFFF, 3}, 10), 10, "4.294967E+09/3"},
        {ExifBytes::raw(0x9286, 7, bytes("ASCII") + Bytes{0, 0, 0, 'x', 'y'}), 7, "ASCII"},
        {ExifBytes::raw(0x9286, 7, {'a', '\n', 'b'}), 1, "610A"},
        {ExifBytes::raw(0x9286, 7, {'a', 'b', 'c', '\t', 'e', 'f'}), 1, "6162630965"},
        {ExifBytes::raw(0xA300, 7, {3}), 7, "03000000"},
        {ExifBytes::raw(0xA302, 7, {1, 2, 3, 4, 5, 6, 7, 8}), 7, "1A000000"},
        {ExifBytes::raw(0x0001, 12, Bytes(8)), 12, ""},
        {ExifBytes::raw(0x0001, 11, Bytes(4)), 11, ""},
        {ExifBytes::raw(0x0001, 129, bytes("utf")), 129, ""},
        {{0x0001, 1, 70000, bytes("long!")}, 1, ""},
        {{0x9286, 7, 70000, bytes("\tlong")}, 1, ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(exifContent(ExifBytes().ifd0({c.tag}).payload()), ifd(c.tag.number, c.d, c.text));
}

TEST(JpegXml, ReadsDirectoriesAsFarAsTheyCanBeTrusted)
{
    const ExifBytes tiff;
    const Tag one = tiff.shorts(1, {1});
    std::string mostText;
    for (int i = 0; i < 200; ++i)
        mostText += ifd(1, 3, "1");
    const Bytes tooMany = ExifBytes().ifd0(std::vector<Tag>(201, one)).payload();
    std::string shown;
    appendHexRun(shown, std::span(tooMany).subspan(14, 100));
    const Tag unreadable{0x0001, 3, 0x7FFFFFFF, Bytes(5)};
    const struct {
        const char* name;
        Bytes payload;
        std::string content;
    } cases[] = {
        {"up to a zero tag",
         ExifBytes().ifd0({tiff.shorts(0x0112, {1}), tiff.shorts(0, {2}), tiff.shorts(0x0113, {3})}).payload(),
         ifd(0x0112, 3, "1")},
        {"the most entries", ExifBytes().ifd0(std::vector<Tag>(200, one)).payload(), mostText},
        {"too many entries", tooMany, "IFD directory seems corrupted: more than 200 entries! " + shown},
        {"none after an error, but the entry itself",
         ExifBytes().ifd0({unreadable}).exif({tiff.shorts(0x8822, {1})}).payload(),
         ifd(0x0001, 3, "") + ifd(0x8769, 4, "43")},
        {"no maker note that is not Undefined, no thumbnail without a length",
         ExifBytes().ifd0({}).exif({tiff.longs(0x927C, {8})}).ifd1({tiff.longs(0x0201, {8})}).payload(),
         ifd(0x8769, 4, "26") + "<IFDE d=\"2\">" + ifd(0x927C, 4, "8") + "</IFDE><IFD1 d=\"2\">" + ifd(0x0201, 4, "8") +
             "</IFD1>"},
        {"the maker note of the last entry with an offset that can be",
         ExifBytes()
             .ifd0({})
             .exif({{0x927C, 7, 3, tiff.number(56, 4)}, {0x927C, 7, 9, tiff.number(0xFFFFFFFF, 4)}})
             .payload(),
         ifd(0x8769, 4, "26") + "<IFDE d=\"2\">" + ifd(0x927C, 7, "56") + ifd(0x927C, 7, "4.294967E+09") +
             "<MAKE d=\"1\">FFDA00</MAKE>\r\n</IFDE>"},
        {"a thumbnail in strips, from the first one on",
         ExifBytes().ifd0({}).ifd1({tiff.longs(0x0111, {52, 54}), tiff.shorts(0x0117, {2, 3})}).payload() +
             Bytes{1, 2, 3, 4, 5},
         "<IFD1 d=\"2\">" + ifd(0x0111, 4, "52,54") + ifd(0x0117, 3, "2,3") + "<THUM d=\"1\">0102030405</THUM></IFD1>"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(exifContent(c.payload), c.content) << c.name;
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

TEST(JpegXml, ReadsSegmentsOfAnyMarkerUpToTheScan)
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

TEST(JpegXml, ReportsItsErrorsWithTheTextSoFar)
{
    const TemporaryFolder folder;
    const std::string path = folder.path("a.jpg");
    const auto expectError = [&](int number, const std::string& description, const std::string& text) {
        const Translation translation = JpegXml().XMLtranslate(path);
        ASSERT_TRUE(translation.error) << description;
        EXPECT_EQ(translation.error->number, number);
        EXPECT_EQ(inEnglish(translation.error->description), description + path);
        EXPECT_EQ(withoutFirstLine(translation.text), text);
    };
    expectError(kOpenFailed, "File not found  file=", "");
    const struct {
        Bytes file;
        const char* description;
        const char* text;
    } cases[] = {
        {{}, "Not a JPEG file - hFFD8 expected at start of file ", ""},
        {{0xFF, 0xD8}, "Header seems corrupted - unknown Marker 0 ", "</JPEG>"},
        {JpegBytes().segment(0xFFFE, {7}).raw({0xFF}).unfinished(), "Header seems corrupted - unknown Marker FF00 ",
         "<APP1 id=\"FFFE\" d=\"1\">07</APP1>\r\n</JPEG>"},
        {JpegBytes().raw({0xFF, 0xDB, 0, 9, 1}).unfinished(), "No StartOfStream marker found ",
         "<APP1 id=\"FFDB\" d=\"1\">01000000000000</APP1>\r\n</JPEG>"},
    };
    for (const auto& c : cases) {
        folder.file("a.jpg", c.file);
        expectError(kStructureError, c.description, c.text);
    }
}

TEST(JpegXml, SurvivesAFileCutShortOrSpoiltAnywhere)
{
    const TemporaryFolder folder;
    const Bytes whole = fullPhotograph(false);
    const std::size_t scanHeader = whole.size() - 17;
    for (std::size_t i = 2; i < whole.size(); ++i) {
        const Bytes cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(i));
        const Translation translation = JpegXml().XMLtranslate(folder.file("a.jpg", cut));
        EXPECT_TRUE(isWellFormed(translation.text)) << i;
        EXPECT_TRUE(translation.error || i >= scanHeader) << i;
        Bytes spoilt = whole;
        spoilt[i] ^= 0xFF;
        EXPECT_TRUE(JpegXml().XMLtranslate(folder.file("a.jpg", spoilt)).text.ends_with("</JPEG>")) << i;
    }
}

TEST(JpegXml, GivesUpOnDirectoriesThatRepeatTheSameBytesAgainAndAgain)
{
    ExifBytes exif;
    exif.ifd0(std::vector<Tag>(200, {1, 1, 60000, Bytes(5)}));
    JpegBytes jpeg;
    for (int i = 0; i < 20; ++i)
        jpeg.exif(exif);
    const Translation translation = translate(jpeg.end());
    ASSERT_TRUE(translation.error);
    EXPECT_EQ(translation.error->number, kOutOfMemory);
    EXPECT_TRUE(translation.text.ends_with("</Exif>\r\n</JPEG>"));
}

TEST(JpegXml, FailsWhenTheDiskFailsInsideADirectory)
{
    ExifBytes exif;
    exif.ifd0({exif.ascii(0x010E, std::string(40'000, 'x'))});
    const Bytes jpeg = JpegBytes().exif(exif).end();
    SystemCalls calls = systemCalls();
    calls.pread = [](int file, void* into, std::size_t size, off_t offset) {
        errno = EIO;
        return offset == 16384 ? ssize_t{-1} : pread(file, into, size, offset);
    };
    const ReplacedSystemCalls replaced(calls);
    const Translation translation = translate(jpeg);
    ASSERT_TRUE(translation.error);
    EXPECT_EQ(translation.error->number, kDeviceError);
}

} // namespace ovisto::test
