// SPDX-License-Identifier: MIT

#include "collection/Report.h"
#include "common/text/Unicode.h"
#include "common/xml/XmlLoad.h"
#include "common/xml/XmlTransform.h"
#include "support/CommandRun.h"
#include "support/CountingProgress.h"
#include "support/Dictionary.h"
#include "support/JpegBytes.h"
#include "support/RecordingReporter.h"

#include <gtest/gtest.h>

#include <algorithm>

#include <filesystem>

#include <sys/stat.h>

namespace ovisto::test {

namespace fs = std::filesystem;

namespace {

std::string styleSheet(const std::string& content)
{
    return "<xsl:stylesheet version='1.0' xmlns:xsl='http://www.w3.org/1999/XSL/Transform' "
           "xmlns:exsl='http://exslt.org/common' xmlns:msxsl='urn:schemas-microsoft-com:xslt' "
           "extension-element-prefixes='exsl' exclude-result-prefixes='msxsl'>" +
           content + "</xsl:stylesheet>";
}

std::string textStyle(const std::string& content)
{
    return styleSheet("<xsl:output method='text'/><xsl:template match='/'>" + content + "</xsl:template>");
}

/// What a style sheet makes of a document that says nothing.
Transformation transformed(const std::string& style)
{
    XmlDocument styleSheetDocument;
    XmlDocument data;
    loadStyleSheet(styleSheetDocument, style, FileKind::Regular);
    EXPECT_FALSE(data.loadText("<a/>"));
    return transformNode(data, std::move(styleSheetDocument), TextEncoding::Utf8);
}

Bytes utf16File(const std::string& text)
{
    return Bytes{0xFF, 0xFE} + bytes(utf16Bytes(text));
}

/// A photograph with a segment whose text the document cannot quote.
Bytes illFormedXmp()
{
    return JpegBytes().segment(0xFFE1, bytes("x") + Bytes{0} + bytes("]]> &")).end();
}

class ReportTest : public testing::Test {
protected:
    ReportResult report(const std::string& style, const std::vector<std::string>& files)
    {
        return makeReport(files, {folder.file("style.xsl", style), folder.path(""), {}}, progress, reporter);
    }

    TemporaryFolder folder;
    RecordingReporter reporter;
    CountingProgress progress;
};

} // namespace

TEST_F(ReportTest, CombinesTheDocumentsExactlyAsTheyAre)
{
    const std::vector<std::string> files = {
        folder.file("é.jpg", fullPhotograph(true)), folder.file("text.jpg", "no photograph"),
        folder.file("xmp.jpg", illFormedXmp()), folder.file("b.jpg", JpegBytes().app0().end())};
    const ReportResult result = report(textStyle("<xsl:value-of select='count(//JPEG)'/>"), files);
    EXPECT_EQ(result.path, folder.path("Report.txt"));
    EXPECT_EQ(contentOf(result.path), utf16File("2"));
    ASSERT_EQ(result.leftOut.size(), 2U);
    EXPECT_EQ(result.leftOut[0].path, files[1]);
    EXPECT_EQ(result.leftOut[1].path, files[2]) << "one text that is not well-formed would spoil the whole";
    EXPECT_EQ(contentOf(folder.path("Report.xml")), utf16File("<JPEGs>" + JpegXml().XMLtranslate(files[0]).text +
                                                              JpegXml().XMLtranslate(files[3]).text + "</JPEGs>"));
    EXPECT_TRUE(reporter.contexts.empty());

    report(textStyle(""), {});
    EXPECT_EQ(contentOf(folder.path("Report.xml")), utf16File("<JPEGs></JPEGs>"));
}

TEST_F(ReportTest, CoversTheFilesBeforeItWasStopped)
{
    const std::string file = folder.file("a.jpg", JpegBytes().app0().end());
    CountingProgress stopping(2);
    const std::string style = folder.file("style.xsl", textStyle("<xsl:value-of select='count(//JPEG)'/>"));
    makeReport({file, file, file}, {style, folder.path(""), {}}, stopping, reporter);
    EXPECT_EQ(contentOf(folder.path("Report.txt")), utf16File("2"));
}

TEST_F(ReportTest, TakesTheExtensionFromTheText)
{
    const struct {
        const char* report;
        const char* extension;
    } cases[] = {{"", "txt"}, {"plain", "txt"}, {"<html>", "htm"}, {"<HTML>", "HTM"}, {"<?xml", "?xm"}, {"<a", "a"}};
    for (const auto& c : cases)
        EXPECT_EQ(reportExtension("\xFF\xFE" + utf16Bytes(c.report)), c.extension) << c.report;
    EXPECT_EQ(
        fs::path(
            report(styleSheet("<xsl:output method='html'/><xsl:template match='/'><html>é</html></xsl:template>"), {})
                .path)
            .filename(),
        "Report.htm");
    EXPECT_EQ(contentOf(folder.path("Report.htm")), utf16File("<html>é</html>\n"));
    // An XML declaration makes an extension that not every system has file names for.
    EXPECT_EQ(report(styleSheet("<xsl:template match='/'><a/></xsl:template>"), {}).path, "");
    EXPECT_EQ(report(textStyle("&lt;/a/"), {}).path, "");
    EXPECT_EQ(reporter.contexts, (std::vector<std::string>{"Create file " + folder.path("Report.?xm"),
                                                           "Create file " + folder.path("Report./a/")}));
}

TEST_F(ReportTest, NamesWhatFailed)
{
    report("<xsl:stylesheet>", {});
    EXPECT_EQ(reporter.contexts.back(), folder.path("style.xsl"));
    EXPECT_FALSE(fs::exists(folder.path("Report.xml")));

    report(textStyle("begun<xsl:message terminate='yes'>no more</xsl:message>"), {});
    EXPECT_EQ(reporter.contexts.back(), "Transform XML");
    report(textStyle("<xsl:value-of select='no-such-function()'/>"), {});
    EXPECT_EQ(reporter.contexts.back(), "Transform XML");
    report("<xsl:stylesheet version='1.0' xmlns:xsl='http://www.w3.org/1999/XSL/Transform'><xsl:template "
           "match='['/></xsl:stylesheet>",
           {});
    EXPECT_EQ(reporter.contexts.back(), "Transform XML");
    EXPECT_EQ(reporter.contexts.size(), 4U);

    fs::remove(folder.path("Report.txt"));
    fs::create_directory(folder.path("Report.txt"));
    EXPECT_EQ(report(textStyle("text"), {}).path, "");
    EXPECT_EQ(reporter.contexts.back(), "Create file " + folder.path("Report.txt"));
    fs::remove(folder.path("Report.xml"));
    fs::create_directory(folder.path("Report.xml"));
    report(textStyle("text"), {});
    EXPECT_EQ(reporter.contexts.back(), folder.path("Report.xml"));
    EXPECT_EQ(reporter.contexts.size(), 6U);
}

TEST_F(ReportTest, GivesStyleSheetsTheTextsOfValues)
{
    ExifBytes exif;
    exif.ifd0({exif.shorts(0x0112, {6}), exif.shorts(0x0128, {2})});
    const std::string file = folder.file("a.jpg", JpegBytes().exif(exif).end());
    const std::pair<const char*, const char*> cases[] = {
        {"//IFD[@id='0112']", "turned right (6)"},
        {"//IFD[@id='0128'] | //IFD[@id='0112']", "turned right (6)"},
        {"//IFD[@id='0112']/@id", "0112"},
        {"//IFD[@id='0112']/text()", "6"},
        {"//none", ""},
        {"'6'", "6"},
        {"document('')/*/*[1]", ""},
    };
    std::string style;
    std::string texts;
    for (const auto& [argument, text] : cases) {
        style += "<xsl:value-of select=\"v:text(" + std::string(argument) + ")\" xmlns:v='urn:ovisto:values'/>!";
        texts += std::string(text) + "!";
    }
    const ReportOptions options{folder.file("a.xsl", textStyle(style)), folder.path(""), {}, {&dictionary()}};
    EXPECT_EQ(contentOf(makeReport({file}, options, progress, reporter).path), utf16File(texts));
    EXPECT_TRUE(reporter.contexts.empty());
    for (const char* wrong : {"v:text()", "v:text(1, 2)", "v:texts(1)"})
        report(textStyle("<xsl:value-of select='" + std::string(wrong) + "' xmlns:v='urn:ovisto:values'/>"), {file});
    EXPECT_EQ(reporter.contexts, std::vector<std::string>(3, "Transform XML"));
}

TEST(XmlTransform, EndsStyleSheetsThatWouldNot)
{
    const TemporaryFolder folder;
    const std::string call = "<xsl:call-template name='again'/>";
    for (const std::string& again : {call, call + call}) { // too deep; and too long before it is too deep
        const std::string style =
            folder.file("a.xsl", styleSheet("<xsl:template match='/' name='again'>" + again + "</xsl:template>"));
        EXPECT_TRUE(transformed(style).error) << again;
    }
    const std::string doubling = folder.file(
        "b.xsl",
        styleSheet("<xsl:template match='/' name='again'><xsl:param name='n' select='40'/><xsl:if test='$n &gt; 0'>"
                   "<xsl:call-template name='again'><xsl:with-param name='n' select='$n - 1'/>"
                   "</xsl:call-template><xsl:call-template name='again'><xsl:with-param name='n' select='$n - "
                   "1'/></xsl:call-template></xsl:if></xsl:template>"));
    EXPECT_TRUE(transformed(doubling).error);

    const std::string longer = folder.file(
        "c.xsl", styleSheet("<xsl:template match='/' name='again'><xsl:param name='s' select=\"'xx'\"/>"
                            "<xsl:call-template name='again'><xsl:with-param name='s' select='concat($s, $s)'/>"
                            "</xsl:call-template></xsl:template>"));
    const std::string wider = folder.file(
        "d.xsl", styleSheet("<xsl:template match='/' name='again'><xsl:param name='v'><i/></xsl:param>"
                            "<xsl:call-template name='again'><xsl:with-param name='v'><xsl:copy-of select='$v'/>"
                            "<xsl:copy-of select='$v'/></xsl:with-param></xsl:call-template></xsl:template>"));
    for (const std::string& style : {longer, wider}) {
        const auto error = transformed(style).error;
        ASSERT_TRUE(error);
        EXPECT_EQ(error->number, kOutOfMemory) << inEnglish(error->description);
    }
    EXPECT_FALSE(transformed(folder.file("e.xsl", textStyle("fine"))).error) << "the limit is gone with its user";
}

TEST(XmlTransform, WritesNoFilesAndReachesNoNetwork)
{
    const TemporaryFolder folder;
    const std::string target = folder.path("written.txt");
    folder.file("other.xml", "<other>local</other>");
    const struct {
        std::string content;
        const char* text;
    } cases[] = {
        {"<exsl:document href='" + target + "'>x</exsl:document>", ""},
        {"<xsl:document href='" + target + "' xmlns:xsl='http://www.w3.org/1999/XSL/Transform'>x</xsl:document>", ""},
        {"<xsl:value-of select=\"document('http://127.0.0.1:9/a.xml')\"/>", ""},
        {"<xsl:value-of select=\"document('other.xml')\"/>", "local"},
        {"<xsl:variable name='v'><i/><i/></xsl:variable><xsl:value-of select='count(msxsl:node-set($v)/i)'/>", "2"},
        {"<xsl:variable name='v'><i/></xsl:variable><xsl:value-of select='count(exsl:node-set($v)/i)'/>", "1"},
        {"<![CDATA[<&>]]>", "<&>"},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(transformed(folder.file("a.xsl", textStyle(c.content))).bytes, c.text) << c.content;
    }
    EXPECT_FALSE(fs::exists(target));
}

TEST(XmlTransform, ReadsNoFilesButBelowItsFolder)
{
    const TemporaryFolder folder;
    fs::create_directories(folder.path("styles/sub"));
    fs::create_directories(folder.path("allowed"));
    const std::string secret = folder.file("secret.xml", "<x>secret</x>");
    const std::string allowed = folder.file("allowed/x.xml", "<x>allowed</x>");
    const std::string imported = textStyle("<xsl:value-of select=\"document('/')\"/>secret");
    folder.file("import.xsl", imported);
    folder.file("styles/sub/x.xml", "<x>own</x>");
    folder.file("styles/sub/entity.xml", "<!DOCTYPE x [<!ENTITY s SYSTEM '" + secret + "'>]><x>&s;</x>");
    folder.file("styles/sub/type.xml", "<!DOCTYPE x SYSTEM '" + secret + "'><x>own</x>");
    fs::create_symlink(secret, folder.path("styles/link.xml"));
    fs::create_directory_symlink(folder.path(""), folder.path("styles/up"));
    const auto document = [](const std::string& address) {
        return textStyle("<xsl:value-of select=\"concat(document('" + address + "'), '!')\"/>");
    };
    const auto entity = [](const std::string& address) {
        return "<!DOCTYPE x [<!ENTITY s SYSTEM '" + address + "'>]>" + textStyle("&s;!");
    };
    const auto parameter = [](const std::string& address) {
        return "<!DOCTYPE x [<!ENTITY % s SYSTEM '" + address + "'> %s;]>" + textStyle("!");
    };
    const struct {
        std::string style;
        const char* text; // none: it is refused
        const char* reason = "may not read";
    } cases[] = {
        {document("sub/x.xml"), "own!"},
        {document(folder.path("styles/sub/../sub/x.xml")), "own!"},
        {document("file://" + folder.path("styles/sub/x.xml")), "own!"},
        {document("sub/none.xml"), "!"},
        {document("sub/type.xml"), "own!"},
        {document(allowed), "allowed!"},
        {entity("sub/x.xml"), "own!"},
        {document("../secret.xml"), nullptr},
        {document("..%2Fsecret.xml"), nullptr},
        {document("sub/../../secret.xml"), nullptr},
        {document(secret), nullptr},
        {document("file://" + secret), nullptr},
        {document("link.xml"), nullptr},
        {document("up/secret.xml"), nullptr},
        {document("sub/entity.xml"), nullptr},
        {document("http://127.0.0.1:9/x.xml"), nullptr, "Network file read"},
        {entity(secret), nullptr},
        {entity("link.xml"), nullptr},
        {parameter(secret), nullptr},
        {styleSheet("<xsl:import href='../import.xsl'/>"), nullptr},
        {styleSheet("<xsl:include href='up/import.xsl'/>"), nullptr},
    };
    for (const auto& c : cases) {
        XmlDocument style;
        XmlDocument data;
        Transformation result;
        EXPECT_FALSE(data.loadText("<a/>"));
        ErrorTrap trap;
        trap.run([&] {
            loadStyleSheet(style, folder.file("styles/a.xsl", c.style), FileKind::Regular, {folder.path("allowed")});
            result = transformNode(data, std::move(style), TextEncoding::Utf8);
            if (result.error)
                throw Error(*result.error);
        });
        EXPECT_EQ(result.bytes.find("secret"), std::string::npos) << c.style;
        const std::string reason = trap.pending() ? inEnglish(trap.take().description) : "";
        if (c.text != nullptr)
            EXPECT_EQ(result.bytes + reason, c.text) << c.style;
        else
            EXPECT_NE(reason.find(c.reason), std::string::npos) << c.style << reason;
    }
}

TEST(XmlTransform, WaitsForNoPipe)
{
    const TemporaryFolder folder;
    ASSERT_EQ(mkfifo(folder.path("pipe").c_str(), 0600), 0);
    const struct {
        std::string content;
        const char* text;
    } cases[] = {
        {textStyle("<xsl:value-of select=\"concat(document('pipe'), 'read')\"/>"), "read"},
        {"<!DOCTYPE x [<!ENTITY pipe SYSTEM 'pipe'>]>" + textStyle("&pipe;read"), ""},
        {"<!DOCTYPE x [<!ENTITY % pipe SYSTEM 'pipe'> %pipe;]>" + textStyle("read"), ""},
        {styleSheet("<xsl:import href='pipe'/>"), ""},
        {"<!DOCTYPE x SYSTEM 'pipe'>" + textStyle("read"), ""},
    };
    for (const auto& c : cases) {
        const std::string style = folder.file("a.xsl", c.content);
        const CommandRun run =
            runCommand({"timeout", "20", OVISTO_CLI, "report", "--style", style, OVISTO_OWN_SAMPLES "no-exif.jpg"});
        EXPECT_EQ(run.output, c.text) << c.content;
        EXPECT_EQ(run.status, *c.text != '\0' ? 0 : 1) << c.content << run.errors;
    }
}

TEST(XmlLoad, TakesADocumentTypeThatOnlyNamesCharacters)
{
    const TemporaryFolder folder;
    const std::string style = folder.file("a.xsl", "<!DOCTYPE x [<!ENTITY sz '&#223;'>]>" + textStyle("Gru&sz;"));
    RecordingReporter reporter;
    CountingProgress progress;
    const ReportResult result = makeReport({}, {style, folder.path(""), {}}, progress, reporter);
    EXPECT_EQ(contentOf(result.path), utf16File("Gruß"));
    EXPECT_TRUE(reporter.contexts.empty());
}

TEST(ReportStyles, SayTheSameOfTheSamplesInEveryForm)
{
    const TemporaryFolder folder;
    ExifBytes old; // the maker's full name, and an exposure as powers of two only
    old.ifd0({old.ascii(0x010F, "NORVANE CORPORATION"), old.ascii(0x0110, "Norvane P2")});
    old.exif({old.rationals(0x9201, {850, 100}, 10), old.rationals(0x9202, {3, 1}), old.rationals(0x920A, {87, 10})});
    ExifBytes formula; // what a spreadsheet would run
    formula.ifd0({formula.ascii(0x010E, "=1+1, \"x\""), formula.ascii(0x010F, "@sum"), formula.ascii(0x0110, "+cmd")});
    formula.exif({formula.ascii(0x8827, "-1/3"), formula.ascii(0xA434, "-")});
    const std::vector<std::string> files = {
        OVISTO_OWN_SAMPLES "little-endian.jpg", OVISTO_OWN_SAMPLES "no-exif.jpg", OVISTO_OWN_SAMPLES "night.jpg",
        folder.file("old.jpg", JpegBytes().exif(old).end()), folder.file("+.jpg", JpegBytes().exif(formula).end())};
    const struct {
        const char* style;
        const char* name;
        std::vector<const char*> texts;
    } cases[] = {
        {"table.xsl", "Report.htm", {"<td>Castelmar Lumetra 35</td>", ">1/125 s<", ">f/8<", ">2023-05-14 06:42:18<"}},
        {"csv.xsl",
         "Report.txt",
         {"little-endian.jpg,Mountain lake,2023-05-14 06:42,Castelmar Lumetra 35,Castelmar Zoom 24-70mm "
          "F2.8-4,1/125,8,100,24,lake;mountains;morning;reflection,,\r\n",
          "no-exif.jpg,,,,,,,,,,,\r\n", "old.jpg,,,Norvane P2,,1/362,2.8,,8.7,,,\r\n",
          "'+.jpg,\"'=1+1, \"\"x\"\"\",,'@sum +cmd,'-,,,-1/3,,,,\r\n", "\"Le quai éclairé, huit secondes de pose\""}},
        {"list.xsl", "Report.txt", {"\r\n  1/125 s f/8 ISO 100 24 mm\r\n"}},
        {"statistics.xsl",
         "Report.htm",
         {"Castelmar Lumetra 35</text><rect x=\"290\" y=\"3\" width=\"480\"", ">24 mm</text>", ">not known</text>",
          ">2023-12</text>"}},
    };
    for (const auto& c : cases) {
        RecordingReporter reporter;
        CountingProgress progress;
        const ReportResult result = makeReport(files,
                                               {OVISTO_DATA_FOLDER + std::string("reports/") + c.style,
                                                folder.path(""),
                                                {},
                                                {.dictionary = &dictionary()}},
                                               progress, reporter);
        EXPECT_EQ(result.path, folder.path(c.name));
        EXPECT_TRUE(reporter.contexts.empty());
        const Bytes report = contentOf(result.path);
        for (const char* text : c.texts) {
            const Bytes part = bytes(utf16Bytes(text));
            EXPECT_NE(std::search(report.begin(), report.end(), part.begin(), part.end()), report.end())
                << c.style << " " << text;
        }
    }
}

} // namespace ovisto::test
