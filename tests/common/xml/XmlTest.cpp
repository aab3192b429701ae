// SPDX-License-Identifier: MIT

#include "common/xml/XmlLoad.h"
#include "document/NodePath.h"
#include "document/TagDictionary.h"
#include "support/JpegBytes.h"
#include "support/RecordingReporter.h"

#include <gtest/gtest.h>

namespace ovisto::test {

namespace {

XmlDocument parsed(const std::string& text)
{
    XmlDocument document;
    EXPECT_FALSE(document.loadText(text)) << text;
    return document;
}

/// What XMLLoad() says when it refuses a file of this content.
std::string loadError(const std::string& path)
{
    XmlDocument document;
    ErrorTrap trap;
    trap.run([&] { XMLLoad(document, path); });
    EXPECT_FALSE(document.documentElement());
    if (!trap.pending())
        return {};
    EXPECT_EQ(trap.error().number, kOpenFailed);
    return inEnglish(trap.take().description);
}

} // namespace

TEST(XmlNode, AnswersNothingWhenItIsNoNode)
{
    XmlDocument document;
    XmlNode none = document.selectSingleNode("/JPEG");
    EXPECT_FALSE(none);
    none.setText("x");
    none.setAttribute("d", "1");
    none.remove();
    none.appendChild(none.createElement("IFD"));
    EXPECT_EQ(none.text() + none.attribute("d") + none.name() + NodeXPath(none), "");
    EXPECT_TRUE(none.children().empty());
}

TEST(XmlNode, StaysUsableAfterItWasRemoved)
{
    XmlDocument document = parsed("<a><b c='1'>text<d/></b></a>");
    XmlNode inner = document.selectSingleNode("//d");
    XmlNode removed = document.selectSingleNode("/a/b");
    removed.remove();
    removed.remove();
    EXPECT_EQ(removed.text(), "text");
    EXPECT_EQ(inner.name(), "d");
    EXPECT_EQ(document.xml(), "<a/>\n");
}

TEST(XmlNode, ChangesTextWithoutReadingItAsMarkup)
{
    XmlDocument document = parsed("<a>old<b/></a>");
    document.documentElement().setText("1 < 2 & \"3\"\r\n");
    EXPECT_EQ(document.documentElement().text(), "1 < 2 & \"3\"\r\n");
    EXPECT_EQ(document.xml(), "<a>1 &lt; 2 &amp; \"3\"&#13;\n</a>\n");
}

TEST(XmlNode, RaisesAnErrorForWhatIsNoPath)
{
    const XmlDocument document = parsed("<a/>");
    EXPECT_EQ(errorNumberOf([&] { document.selectSingleNode("a[@id='x]"); }), kInvalidCall);
    EXPECT_EQ(errorNumberOf([&] { document.selectSingleNode("count(a)"); }), kInvalidCall);
    EXPECT_TRUE(document.selectNodes("//namespace::*").empty());
}

TEST(XmlDocument, PreservesWhiteSpaceAndCData)
{
    const XmlDocument document = parsed("<a>\r\n<![CDATA[<x>&amp;]]></a>");
    const auto children = document.documentElement().children();
    ASSERT_EQ(children.size(), 2U);
    EXPECT_EQ(children[0].name(), "#text");
    EXPECT_TRUE(children[1].isCData());
    EXPECT_EQ(children[1].text(), "<x>&amp;");
}

TEST(XmlDocument, SaysWhereAndWhyATextDoesNotParse)
{
    XmlDocument document = parsed("<a/>");
    const auto error = document.loadText("<a>\n<b>\n  <c></b></a>");
    ASSERT_TRUE(error);
    EXPECT_NE(error->code, 0);
    EXPECT_EQ(error->line, 3);
    EXPECT_GT(error->linepos, 0);
    EXPECT_EQ(error->srcText, "  <c></b></a>");
    EXPECT_EQ(inEnglish(parseErrorText(*error))
                  .find(inEnglish(error->reason) + " line:3 pos:" + std::to_string(error->linepos) + " src:  <c>"),
              0U);
    EXPECT_FALSE(document.documentElement()) << "the former content is gone";
}

TEST(XmlDocument, RefusesMoreNodesThanTheirTextIsWorth)
{
    std::string flood = "<a>";
    for (int i = 0; i < 200'000; ++i)
        flood += "<b c='1'/>";
    XmlDocument document;
    const auto error = document.loadText(flood + "</a>");
    ASSERT_TRUE(error);
    EXPECT_EQ(error->reason, Phrase(Message::OutOfMemory));
    EXPECT_FALSE(document.loadText("<a>" + std::string(40'000'000, '0') + "</a>")) << "a long text is no such flood";
    EXPECT_FALSE(document.loadText("<a><![CDATA[" + flood + "]]></a>")) << "nor is markup that is none";
    std::string deep;
    for (int i = 0; i < 300; ++i)
        deep = "<a>" + deep + "</a>";
    EXPECT_TRUE(document.loadText(deep));
}

TEST(XmlDocument, RefusesEntitiesThatGrowBeyondTheirText)
{
    std::string laughs = "<!ENTITY a0 'ha'>";
    for (int i = 1; i < 10; ++i) {
        const std::string former = "&a" + std::to_string(i - 1) + ";";
        laughs += "<!ENTITY a" + std::to_string(i) + " '";
        for (int time = 0; time < 10; ++time)
            laughs += former;
        laughs += "'>";
    }
    const auto repeated = [](const std::string& text, int times) {
        std::string all;
        for (; times > 0; --times)
            all += text;
        return all;
    };
    const std::string elements = "<!ENTITY e \"" + repeated("<b c='1'/>", 10'000) + "\">";
    const std::string text = "<!ENTITY t '" + std::string(100'000, 'x') + "'>";
    const std::string padding = "<!--" + std::string(10'000'000, 'x') + "-->"; // the library sets its limits aside
    for (const std::string& document :
         {laughs + "]><a>&a9;</a>", laughs + "]><a b='&a9;'/>", laughs + "]><a>&a9;</a>" + padding,
          elements + "]><a>" + repeated("&e;", 500) + "</a>", text + "]><a>" + repeated("&t;", 10'000) + "</a>",
          text + "]><a>" + repeated("<b c='" + repeated("&t;", 10) + "'/>", 1000) + "</a>"}) {
        XmlDocument loaded;
        EXPECT_TRUE(loaded.loadText("<!DOCTYPE a [" + document)) << document.substr(0, 40);
    }
    EXPECT_EQ(parsed("<!DOCTYPE a [<!ENTITY b 'c&#100;'><!ENTITY e '&b;&b;'>]><a b='&e;'>&e;</a>").xml(),
              "<!DOCTYPE a [\n<!ENTITY b \"c&#100;\">\n<!ENTITY e \"&b;&b;\">\n]>\n<a b=\"cdcd\">cdcd</a>\n");
    XmlDocument deep;
    EXPECT_TRUE(deep.loadText("<a>" + repeated("<a>", 300) + repeated("</a>", 301) + padding));
}

TEST(NodePath, NamesEachLevelWithItsId)
{
    const XmlDocument document = parsed("<JPEG><Exif id='FFE1'><IFD1><IFD id='0201'>12</IFD></IFD1></Exif></JPEG>");
    const ConstXmlNode entry = document.selectSingleNode("//IFD");
    EXPECT_EQ(NodeXPath(entry), "/JPEG/Exif[@id='FFE1']/IFD1/IFD[@id='0201']");
    EXPECT_EQ(NodeXPath(entry.children().front()), NodeXPath(entry)) << "a text has its element's path";
    EXPECT_EQ(NodeXPath(document.documentElement()), "/JPEG");
    EXPECT_EQ(document.selectSingleNode(NodeXPath(entry)), entry);
}

TEST(NodePath, DeletesAnAttributeThatIsSetToNothing)
{
    XmlDocument document = parsed("<a b='1'/>");
    const XmlNode node = document.documentElement();
    AttributeSet(node, "c", "");
    EXPECT_EQ(document.xml(), "<a b=\"1\"/>\n");
    AttributeSet(node, "c", "2");
    AttributeSet(node, "b", "");
    EXPECT_EQ(document.xml(), "<a c=\"2\"/>\n");
}

TEST(XmlLoad, NamesFileLineReasonAndSourceTextOfAnError)
{
    const TemporaryFolder folder;
    const std::string missing = folder.path("missing.xml");
    EXPECT_EQ(loadError(missing), "File " + missing + "\r\nLine 0 pos 0 \r\nFile not found\r\n");

    const std::string unclosed = folder.file("unclosed.xml", "<a>\n<b/>\n<c>");
    const std::string message = loadError(unclosed);
    EXPECT_EQ(message.find("File " + unclosed + "\r\nLine 3 pos 4 \r\n"), 0U) << message;
    EXPECT_TRUE(message.ends_with("\r\n<c>")) << message;
}

TEST(XmlLoad, ValidatesOnlyWhatDeclaresADocumentType)
{
    const TemporaryFolder folder;
    const std::string type = "<!DOCTYPE a [<!ELEMENT a (b)><!ELEMENT b EMPTY>]>\n";
    EXPECT_EQ(loadError(folder.file("invalid.xml", type + "<a><c/></a>")).find("File "), 0U);
    for (const std::string& content : {type + "<a> <b/> </a>", std::string("<a><c/></a>")}) {
        XmlDocument document;
        EXPECT_EQ(errorNumberOf([&] { XMLLoad(document, folder.file("valid.xml", content)); }), 0) << content;
        EXPECT_EQ(document.documentElement().children().size(), 1U) << "white space between elements is no node";
    }
}

TEST(XmlLoad, ReadsUtf16AndBringsInNothingFromOutside)
{
    const TemporaryFolder folder;
    Bytes utf16 = {0xFF, 0xFE};
    for (const char16_t unit : std::u16string(u"<a>\u20AC</a>"))
        utf16 = utf16 + Bytes{static_cast<std::uint8_t>(unit), static_cast<std::uint8_t>(unit >> 8)};
    XmlDocument document;
    XMLLoad(document, folder.file("utf16.xml", utf16));
    EXPECT_EQ(document.documentElement().text(), "€");

    const std::string secret = folder.file("secret.txt", "secret");
    const std::string other = folder.file("other.dtd", "<!ELEMENT a ANY><!ENTITY o 'other'>");
    const struct {
        std::string document;
        const char* reason; // none: it is loaded
    } cases[] = {
        {"<!DOCTYPE a [<!ELEMENT a ANY><!ENTITY s SYSTEM '" + secret + "'>]><a>&s;</a>", "\"s\" is outside"},
        {"<!DOCTYPE a [<!ENTITY % s SYSTEM '" + secret + "'> %s;]><a/>", "\"s\" is outside"},
        {"<!DOCTYPE a SYSTEM '" + other + "'><a>&o;</a>", "\"o\" is outside"},
        {"<!DOCTYPE a SYSTEM '" + other + "'><a>&p;</a>", "\"p\" is not declared"},
        {"<!DOCTYPE a SYSTEM '" + other + "' [<!ENTITY i 'inside'>]><a>&i;</a>", nullptr},
        {"<a><i:include xmlns:i='http://www.w3.org/2001/XInclude' href='secret.txt'/></a>", "includes another"},
    };
    for (const auto& c : cases) {
        if (c.reason != nullptr) {
            EXPECT_NE(loadError(folder.file("entity.xml", c.document)).find(c.reason), std::string::npos) << c.document;
            continue;
        }
        XMLLoad(document, folder.file("entity.xml", c.document));
        EXPECT_EQ(document.documentElement().text(), "inside");
        EXPECT_EQ(document.documentElement().children().front().name(), "#text") << "nothing is left to grow";
    }
    const std::string remote = folder.file("remote.xml", "<!DOCTYPE a SYSTEM 'http://127.0.0.1:9/a.dtd'><a/>");
    EXPECT_NE(loadError(remote).find("\"http://127.0.0.1:9/a.dtd\" cannot be loaded"), std::string::npos);
}

} // namespace ovisto::test
