// SPDX-License-Identifier: MIT

#include "document/NodeChange.h"
#include "collection/BatchAction.h"
#include "collection/DocumentLoad.h"
#include "collection/XmlExport.h"
#include "document/MetadataDocument.h"
#include "document/NodePath.h"
#include "document/NodePaths.h"
#include "document/NodeValue.h"
#include "document/PropertyTree.h"
#include "support/CountingProgress.h"
#include "support/Dictionary.h"
#include "support/JpegBytes.h"
#include "support/RecordingReporter.h"

#include <gtest/gtest.h>

namespace ovisto::test {

namespace {

NodeChange changeOf(NodeAction action, const std::string& path, const std::string& value = {})
{
    return {action, dictionary().entry(path), value};
}

/// Makes the change to a file, as it is made to many.
void changeFile(const std::string& path, const NodeChange& change, ErrorReporter& reporter)
{
    const std::vector<std::string> files{path};
    CountingProgress progress;
    BatchAction(files, change).run(progress, reporter);
}

const std::string kExif = kExifPath;

} // namespace

TEST(NodeChange, SetsDeletesAndAddsInAFile)
{
    const TemporaryFolder folder;
    const std::string path = folder.file("a.jpg", JpegBytes().app0().end());
    RecordingReporter reporter;
    changeFile(path, changeOf(NodeAction::Set, kExif + "/IFD[@id='9C9B']", "Größe"), reporter);
    EXPECT_EQ(loadDocument(path).selectSingleNode("//IFD[@id='9C9B']").text(), "Größe");
    changeFile(path, changeOf(NodeAction::Delete, kExif + "/IFD[@id='9C9B']"), reporter);
    EXPECT_FALSE(loadDocument(path).selectSingleNode("//IFD[@id='9C9B']"));
    changeFile(path, changeOf(NodeAction::Add, kExif + "/IFD1/THUM"), reporter);
    EXPECT_EQ(loadDocument(path).selectNodes("//IFD1/IFD").size(), 3U);
    changeFile(path, changeOf(NodeAction::Set, "/JPEG/Exif1[@id='FFE1']", "\n<x/>"), reporter);
    EXPECT_EQ(nodeValue(loadDocument(path).selectSingleNode("/JPEG/Exif1")), "\n<x/>") << "its line break is no layout";
    EXPECT_EQ(imageData(contentOf(path)), imageData(JpegBytes().app0().end()));
    EXPECT_TRUE(reporter.contexts.empty());
}

TEST(NodeChange, DoesNotWriteAFileThatHasItAlready)
{
    const TemporaryFolder folder;
    const Bytes before = fullPhotograph(false); // big-endian: any rewrite would show
    const std::string path = folder.file("a.jpg", before);
    RecordingReporter reporter;
    changeFile(path, changeOf(NodeAction::Set, kExif + "/IFD[@id='010F']", "Acme"), reporter);
    changeFile(path, changeOf(NodeAction::Delete, kExif + "/IFD[@id='0131']"), reporter);
    changeFile(path, changeOf(NodeAction::Add, kExif + "/IFDE"), reporter);
    EXPECT_EQ(contentOf(path), before);
}

TEST(NodeChange, RemovesTheCompanionOfADeletedContainer)
{
    const TemporaryFolder folder;
    const std::string path = folder.file("a.jpg", fullPhotograph(true));
    const struct {
        std::string deleted;
        const char* removedToo;
    } cases[] = {{"/IFDE", "//IFD[@id='8769']"},
                 {"/IFDI", "//IFD[@id='A005']"},
                 {"/IFDE/MAKE", "//IFD[@id='927C']"},
                 {"/IFD1/THUM", "//IFD1"},
                 {"/IFD1", "//THUM"}};
    for (const auto& c : cases) {
        XmlDocument document = loadDocument(path);
        RecordingReporter reporter;
        ASSERT_TRUE(document.selectSingleNode(c.removedToo)) << c.deleted;
        EXPECT_TRUE(applyChange(document, changeOf(NodeAction::Delete, kExif + c.deleted), reporter));
        EXPECT_FALSE(document.selectSingleNode(kExif + c.deleted));
        EXPECT_FALSE(document.selectSingleNode(c.removedToo)) << c.deleted;
    }
}

TEST(NodeChange, DoesNotWriteWhatCouldNotBeMadeInFull)
{
    const TemporaryFolder folder;
    const Bytes before = JpegBytes().app0().end();
    const std::string path = folder.file("a.jpg", before);
    XmlDocument poor; // a dictionary without the pointer to IFDE
    ASSERT_FALSE(poor.loadText("<JPEG><Exif id='FFE1'><IFDE><IFD id='9003' d='2'/></IFDE></Exif></JPEG>"));
    RecordingReporter reporter;
    changeFile(path, {NodeAction::Set, DictionaryEntry(poor.selectSingleNode("//IFD")), "x"}, reporter);
    EXPECT_EQ(contentOf(path), before);
    EXPECT_EQ(reporter.contexts.size(), 1U);
}

TEST(NodeChange, ObjectsToValuesWithoutATypeAndToSpoilingTheImage)
{
    EXPECT_EQ(objection(changeOf(NodeAction::Set, kExif + "/IFDE"), Reading::Basic), Phrase(Message::NoDataType));
    EXPECT_EQ(objection(changeOf(NodeAction::Delete, kExif + "/IFDE"), Reading::Basic), "");
    XmlDocument permissive; // a dictionary that gives a directory a type
    ASSERT_FALSE(permissive.loadText("<JPEG><Exif id='FFE1'><IFD1 d='2'/></Exif></JPEG>"));
    const NodeChange value{NodeAction::Set, DictionaryEntry(permissive.selectSingleNode("//IFD1")), "x"};
    EXPECT_EQ(objection(value, Reading::Full), Phrase(Message::NoDataType));
    RecordingReporter reporter;
    XmlDocument document = documentOf("<JPEG><Exif id='FFE1'><IFD1><THUM/></IFD1></Exif></JPEG>");
    EXPECT_EQ(errorNumberOf([&] { applyChange(document, value, reporter); }), kInvalidCall);
    EXPECT_TRUE(document.selectSingleNode("//THUM"));
    EXPECT_EQ(protectionOf(document.selectSingleNode("//IFD1"), value.entry), Protection::Protected);
    EXPECT_EQ(objection(changeOf(NodeAction::Set, kExif + "/IFDE/IFD[@id='A001']"), Reading::Basic), "")
        << "required, but metadata";
    for (const char* path : {"/JPEG", "/JPEG/SOS", "/JPEG/IMG"})
        EXPECT_NE(objection(changeOf(NodeAction::Delete, path), Reading::Basic), "") << path;
    EXPECT_EQ(objection(changeOf(NodeAction::Delete, "/JPEG/APP1[@id='FFFE']"), Reading::Basic), "");
    for (const char* path : {"/JPEG/APP1[@id='FFC1']", "/JPEG/APP1[@id='FFF0']", "/JPEG"})
        EXPECT_NE(objection(changeOf(NodeAction::Add, path), Reading::Basic), "") << path;
    EXPECT_NE(objection(changeOf(NodeAction::Delete, kExif + "/IFD[@id='8769']"), Reading::Basic), "")
        << "it would take IFDE along";
}

TEST(NodeChange, DeletesAPartOfTheImageOnlyWhereItIsEmpty)
{
    XmlDocument document = documentOf("<JPEG><APP1 id='FFDB'>00</APP1><APP1 id='FFDB'/><SOS/><IMG/></JPEG>");
    const auto& entry = dictionary().entry("/JPEG/APP1[@id='FFDB']");
    const auto protections = [&] {
        std::string text;
        for (const XmlNode& node : document.selectNodes("/JPEG/*"))
            text += std::to_string(static_cast<int>(protectionOf(node, dictionary().entry(NodeXPath(node)))));
        return text;
    };
    RecordingReporter reporter;
    const NodeChange deletion{.action = NodeAction::Delete, .entry = entry};
    EXPECT_EQ(objection(deletion, Reading::Full), "");
    EXPECT_EQ(protections(), "2122");
    EXPECT_TRUE(applyChange(document, deletion, reporter));
    EXPECT_EQ(errorNumberOf([&] { applyChange(document, deletion, reporter); }), kInvalidCall);
    EXPECT_EQ(protections(), "222");
    EXPECT_FALSE(applyChange(document, changeOf(NodeAction::Delete, "/JPEG/APP1[@id='FFC1']"), reporter));
}

TEST(XmlExport, WritesTheDocumentWithoutBookkeeping)
{
    const TemporaryFolder folder;
    const XmlDocument document =
        documentOf("<JPEG lo='1' label='L'><IFD leafIndex='x000001' o='1' l='2' s='0' d='2'>\u00E9</IFD></JPEG>");
    RecordingReporter reporter;
    exportDocument(document, folder.path("photo.jpg"), reporter);
    EXPECT_NE(document.xml().find("leafIndex"), std::string::npos) << "the document itself stays as it is";
    EXPECT_EQ(contentOf(folder.path("photo.jpg.XML")), bytes("<JPEG label=\"L\"><IFD d=\"2\">\u00E9</IFD></JPEG>\n"));
}

TEST(PropertyTree, HidesTechnicalNodesWithAllBelowThem)
{
    const XmlDocument document = documentOf("<JPEG><APP0/><Exif id='FFE1'><IFD id='0112'/><IFD id='ABCD'/><IFDI><IFD "
                                            "id='1000'/></IFDI></Exif><SOS/></JPEG>");
    const auto labels = [&](bool technical) {
        std::string text;
        for (const PropertyItem& item : propertyTree(document, dictionary(), technical))
            text += std::to_string(item.depth) + item.label + " ";
        return text;
    };
    EXPECT_EQ(labels(false), "0JPEG File 1Exif Data 2Orientation 2ABCD ");
    EXPECT_EQ(propertyTree(document, dictionary(), true).size(), 8U);
}

TEST(MetadataDocument, RefusesOtherRootsAndBrokenText)
{
    EXPECT_EQ(errorNumberOf([] { documentOf("<HTML/>"); }), kOpenFailed);
    EXPECT_EQ(errorNumberOf([] { documentOf(""); }), kOpenFailed);
    EXPECT_EQ(errorNumberOf([] { documentOf("<JPEG><![CDATA[ a]]> b]]></JPEG>"); }), kOpenFailed);
}

} // namespace ovisto::test
