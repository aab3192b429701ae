// SPDX-License-Identifier: MIT

#include "document/NodeCreation.h"
#include "document/MetadataDocument.h"
#include "support/Dictionary.h"
#include "support/RecordingReporter.h"

#include <gtest/gtest.h>

namespace ovisto::test {

namespace {

/// The document after the node of `path` was created in it.
std::string created(const std::string& documentText, const std::string& path)
{
    XmlDocument document = documentOf(documentText);
    RecordingReporter reporter;
    XmlNode node = CreateNode(document, dictionary().entry(path), reporter);
    EXPECT_TRUE(node.parent());
    EXPECT_TRUE(reporter.contexts.empty());
    const std::string xml = document.xml();
    return xml.substr(0, xml.size() - 1); // without the line end of the file
}

} // namespace

TEST(CreateNode, MakesTheElementsAboveAndTheEntriesThatPointToIt)
{
    const std::string exif = "<Exif id=\"FFE1\" byteSeq=\"II\">";
    const std::string pointer = "<IFD id=\"8769\" d=\"4\">9999</IFD>";
    const struct {
        const char* path;
        std::string content;
    } cases[] = {
        {"/JPEG/Exif[@id='FFE1']/IFDE", exif + pointer + "<IFDE/></Exif>"},
        {"/JPEG/Exif[@id='FFE1']/IFDE/IFD[@id='8822']",
         exif + pointer + "<IFDE><IFD id=\"8822\" d=\"3\"/></IFDE></Exif>"},
        {"/JPEG/Exif[@id='FFE1']/IFDI",
         exif + pointer + "<IFDE><IFD id=\"A005\" d=\"4\">9999</IFD></IFDE><IFDI/></Exif>"},
        {"/JPEG/Exif[@id='FFE1']/IFDE/MAKE",
         exif + pointer + "<IFDE><IFD id=\"927C\" d=\"7\">9999</IFD><MAKE d=\"1\"/></IFDE></Exif>"},
        {"/JPEG/Exif[@id='FFE1']/IFD1/THUM",
         exif +
             "<IFD1><IFD id=\"0202\" d=\"4\">0</IFD><IFD id=\"0201\" d=\"4\">9999</IFD><IFD id=\"0103\" d=\"3\">6</IFD>"
             "<THUM d=\"1\"/></IFD1></Exif>"},
        {"/JPEG/Exif[@id='FFE1']/IFD[@id='9C9B']", exif + "<IFD id=\"9C9B\" d=\"11\"/></Exif>"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(created("<JPEG/>", c.path), "<JPEG>" + c.content + "</JPEG>");
}

TEST(CreateNode, KeepsTheOrderOfTheDictionary)
{
    const std::string exif = "<Exif id=\"FFE1\"><IFD id=\"0110\"/>\n<IFDE/><IFD1/></Exif>";
    EXPECT_EQ(created("<JPEG>" + exif + "</JPEG>", "/JPEG/Exif[@id='FFE1']/IFD[@id='0112']"),
              "<JPEG><Exif id=\"FFE1\"><IFD id=\"0112\" d=\"3\"/><IFD id=\"0110\"/>\n<IFDE/><IFD1/></Exif></JPEG>")
        << "before the entries, by name alone";
    EXPECT_NE(created("<JPEG>" + exif + "</JPEG>", "/JPEG/Exif[@id='FFE1']/IFDI").find("</IFDE><IFDI/><IFD1/>"),
              std::string::npos);
    EXPECT_EQ(created("<JPEG>\r\n<APP0/><APP1 id='FFDB'/><SOS/><IMG/></JPEG>", "/JPEG/Exif[@id='FFE1']"),
              "<JPEG>\n<APP0/><Exif id=\"FFE1\" byteSeq=\"II\"/><APP1 id=\"FFDB\"/><SOS/><IMG/></JPEG>")
        << "before the scan, or it would be lost behind it";
    EXPECT_EQ(created("<JPEG><SOS/><IMG/></JPEG>", "/JPEG/APP1[@id='FFFE']"),
              "<JPEG><APP1 id=\"FFFE\" d=\"1\"/><SOS/><IMG/></JPEG>");
    EXPECT_EQ(created("<JPEG><Exif id='FFE1'/></JPEG>", "/JPEG/Exif[@id='FFE1']"),
              "<JPEG><Exif id=\"FFE1\"/><Exif id=\"FFE1\" byteSeq=\"II\"/></JPEG>")
        << "it is for the caller to look for one that is there";
}

TEST(CreateNode, LeavesExistingCompanionsAlone)
{
    const std::string before = "<JPEG><Exif id=\"FFE1\"><IFDE><IFD id=\"927C\" d=\"7\">5</IFD>";
    EXPECT_EQ(created(before + "</IFDE></Exif></JPEG>", "/JPEG/Exif[@id='FFE1']/IFDE/MAKE"),
              before + "<MAKE d=\"1\"/></IFDE></Exif></JPEG>");
}

TEST(CreateNode, ReportsWhatTheDictionaryLacks)
{
    XmlDocument poor;
    ASSERT_FALSE(poor.loadText("<JPEG><Exif id='FFE1'><IFDE/></Exif></JPEG>"));
    XmlDocument document = documentOf("<JPEG/>");
    RecordingReporter reporter;
    EXPECT_TRUE(CreateNode(document, DictionaryEntry(poor.selectSingleNode("//IFDE")), reporter))
        << "made all the same";
    EXPECT_EQ(reporter.contexts, std::vector<std::string>{"Create node failed "}) << "of the pointer entry";
    reporter.contexts.clear();
    EXPECT_FALSE(CreateNode(document, DictionaryEntry(), reporter));
    EXPECT_EQ(reporter.contexts, std::vector<std::string>{"Create node failed "});
}

} // namespace ovisto::test
