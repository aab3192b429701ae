// SPDX-License-Identifier: MIT

#include "document/TagDictionary.h"
#include "common/text/Hex.h"
#include "common/xml/XmlLoad.h"
#include "document/DataType.h"
#include "document/Directories.h"
#include "document/NodePath.h"
#include "document/NodePaths.h"
#include "document/ValueText.h"
#include "support/CommandRun.h"
#include "support/Dictionary.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace ovisto::test {

TEST(TagDictionary, IsCompleteForEveryEntry)
{
    std::set<std::string> paths;
    for (const ConstXmlNode& node : dictionary().document().selectNodes("//*[@vis]")) {
        const DictionaryEntry entry(node);
        const std::string path = entry.path();
        EXPECT_TRUE(paths.insert(path).second) << path << " stands twice";
        EXPECT_NE(entry.label(), "") << path;
        EXPECT_GT(entry.help().size(), 20U) << path;
        EXPECT_EQ(AttributeGet(node, "vis").find_first_not_of("012"), std::string::npos) << path;
        EXPECT_EQ(AttributeGet(node, "prot").find_first_not_of("012"), std::string::npos) << path;
        const std::string name = node.name();
        const bool isContainer =
            name == "JPEG" || name == "Exif" || name == "IFDE" || name == "IFDI" || name == "IFDG" || name == "IFD1";
        EXPECT_EQ(isContainer, !entry.hasDataType()) << path;
        if (!isContainer) {
            EXPECT_NE(dataTypeName(entry.dataType()), "") << path;
        }
        EXPECT_EQ(pathMeaning(path), name == "IFD" ? PathMeaning::Entry : PathMeaning::OtherNode) << path;
        const DictionaryEntry above(node.parent());
        EXPECT_FALSE(entry.visibility() == Visibility::Shown && above.visibility() != Visibility::Shown)
            << path << " would never be seen";
    }
    EXPECT_GT(paths.size(), 300U);
}

TEST(TagDictionary, NamesValuesThatCanBeTold)
{
    std::size_t named = 0;
    for (const ConstXmlNode& node : dictionary().document().selectNodes("//value | //flag")) {
        const DictionaryEntry entry(node.parent());
        const std::string path = entry.path();
        const std::string raw = node.attribute("raw");
        const std::string text = node.attribute("text");
        EXPECT_FALSE(text.empty() || text.ends_with('.')) << path << " " << raw;
        EXPECT_NE(valueText(entry, raw, englishValueWords()).find(text), std::string::npos) << path << " " << raw;
        EXPECT_EQ(dictionary().entry(path), entry);
        EXPECT_FALSE(dictionary().entry(path + "/" + node.name())) << "no entry of its own";
        ++named;
    }
    EXPECT_GT(named, 200U);
    const auto entries = dictionary().entries(true, Reading::Full);
    EXPECT_FALSE(std::ranges::any_of(entries, [](const DictionaryEntry& entry) { return entry.label().empty(); }));

    const DictionaryEntry source = dictionary().entry("/JPEG/Exif/IFDE/IFD[@id='A300']");
    EXPECT_EQ(enumeratedValues(source, Reading::Full).back().raw, "03");
    EXPECT_EQ(enumeratedValues(source, Reading::Basic).back().raw, "03000000");
    EXPECT_EQ(enumeratedValues(source, Reading::Basic).back().text, "digital camera");
    EXPECT_TRUE(enumeratedValues(dictionary().entry("/JPEG/Exif/IFDE/IFD[@id='9209']"), Reading::Full).empty());
}

TEST(TagDictionary, HoldsWhatTheProgramLooksUp)
{
    const auto isRequired = [](const std::string& path) {
        EXPECT_EQ(dictionary().entry(path).protection(), Protection::Required) << path;
    };
    for (const ExifPart& part : kExifParts) {
        const DictionaryEntry entry = dictionary().entry(partPath(part));
        EXPECT_EQ(exifPartAt(entry.path()), &part) << part.element;
        EXPECT_FALSE(part.kind == PartKind::Directory && entry.protection() == Protection::Free) << part.element;
        for (const std::uint16_t tag : {part.pointer.offset, part.pointer.length}) {
            // Basic documents have the position of the GPS directory, but not the directory: there it can be deleted.
            if (tag != 0 && part.reading == Reading::Basic)
                isRequired(entryPath(*exifPart(part.pointedFrom), tag));
        }
        if (part.property.tag != 0) {
            EXPECT_TRUE(dictionary().entry(entryPath(*exifPart(part.pointedFrom), part.property.tag)));
        }
    }
    EXPECT_EQ(exifPartAt("/JPEG/Exif[@id='FFE2']/IFDE"), nullptr) << "another Exif element";
    EXPECT_FALSE(dictionary().entry("//@label")) << "an attribute is no entry";
    for (const char* path : {"/JPEG/SOS", "/JPEG/IMG", "/JPEG"})
        isRequired(path);
    for (const char* path : {"/JPEG/Exif1[@id='FFE1']", "/JPEG/APP0"})
        EXPECT_TRUE(dictionary().entry(path)) << path;
    const std::pair<const char*, const char*> named[] = {
        {kTitlePath, "Title"},
        {kCommentsPath, "Comments"},
        {kKeywordsPath, "Keywords"},
        {kSubjectPath, "Subject"},
        {kAnyTitlePath, "Title"},
        {kAnyCameraModelPath, "Camera Model"},
        {kAnyOrientationPath, "Orientation"},
        {kAnyDateTakenPath, "Date Taken"},
        {kAnyDateDigitisedPath, "Date Digitised"},
        {kAnyPictureWidthPath, "Picture Width"},
        {kAnyPictureHeightPath, "Picture Height"},
        {kAnyThumbnailWidthPath, "Thumbnail Width"},
        {kAnyThumbnailHeightPath, "Thumbnail Height"},
        {kAnyThumbnailOrientationPath, "Thumbnail Orientation"},
    };
    for (const auto& [path, label] : named)
        EXPECT_EQ(dictionary().entry(path).label(), label) << path;
    for (const char* id : {"9C9B", "9C9C", "9C9D", "9C9E", "9C9F"})
        EXPECT_EQ(dictionary().entry("/JPEG/Exif[@id='FFE1']/IFD[@id='" + std::string(id) + "']").dataType(),
                  kUnicodeString);
    for (std::uint32_t marker = 0xFFC0; marker <= 0xFFFE; ++marker) {
        const bool hasElement = marker == 0xFFDA || marker == 0xFFE0 || marker == 0xFFE1;
        const DictionaryEntry entry = dictionary().entry("/JPEG/APP1[@id='" + hexNumber(marker) + "']");
        EXPECT_EQ(static_cast<bool>(entry), !hasElement) << hexNumber(marker);
        const bool isOfImage = (marker < 0xFFE0 && !hasElement) || (marker >= 0xFFF0 && marker != 0xFFFE);
        EXPECT_EQ(entry.protection() == Protection::Required, isOfImage) << hexNumber(marker);
    }
}

TEST(NodePath, IsWhatTheProgramPrintsAndNoOtherXPath)
{
    using enum PathMeaning;
    const std::string exif = kExifPath;
    const std::pair<std::string, PathMeaning> cases[] = {
        {"", NotAPath},
        {"/", NotAPath},
        {"//IFD", NotAPath},
        {"JPEG", NotAPath},
        {"/JPEG/", NotAPath},
        {" /JPEG", NotAPath},
        {"/*", NotAPath},
        {"/JPEG/..", NotAPath},
        {"/JPEG/text()", NotAPath},
        {"document('/etc/passwd')", NotAPath},
        {exif + "|/JPEG/SOS", NotAPath},
        {exif + "/IFD[1]", NotAPath},
        {exif + "/IFD[@id=\"9C9B\"]", NotAPath},
        {exif + "/IFD[@id='']", NotAPath},
        {exif + "/IFD[@id='9C9B'", NotAPath},
        {exif + "/IFD[@id='9C9B'][@id='9C9B']", NotAPath},
        {exif + "/IFD[@id='9C9B' or '1']", NotAPath},
        {exif + "IFDE", NotAPath},
        {"/Exif[@id='FFE1']", NoSuchNode},
        {"/JPEG[@id='FFE1']", NoSuchNode},
        {"/JPEG/Nonsense", NoSuchNode},
        {"/JPEG/JPEG", NoSuchNode},
        {"/JPEG/Exif", NoSuchNode},
        {"/JPEG/Exif1", NoSuchNode},
        {"/JPEG/SOS[@id='FFDA']", NoSuchNode},
        {"/JPEG/APP1[@id='FFE1']", NoSuchNode},
        {"/JPEG/APP1[@id='FF00']", NoSuchNode},
        {"/JPEG/IFD[@id='9C9B']", NoSuchNode},
        {exif + "/IFD", NoSuchNode},
        {exif + "/IFD[@id='9c9b']", NoSuchNode},
        {exif + "/IFD[@id='09C9B']", NoSuchNode},
        {exif + "/IFD[@id='0000']", NoSuchNode},
        {exif + "/IFD1[@id='9C9B']", NoSuchNode},
        {exif + "/IFDE/IFDI", NoSuchNode},
        {exif + "/IFDE/MAKE/IFD[@id='0001']", NoSuchNode},
        {exif + "/IFD[@id='ABCD']", Entry},
        {exif + "/IFDG/IFD[@id='0000']", Entry},
        {exif + "/IFD1/THUM", OtherNode},
        {"/JPEG/APP1[@id='FFFE']", OtherNode},
    };
    for (const auto& [path, meaning] : cases)
        EXPECT_EQ(pathMeaning(path), meaning) << path;
}

namespace {

const std::string kDataFolder = OVISTO_DATA_FOLDER;

/// The paths of the files with the dictionary's texts in other languages.
std::vector<std::string> languageFiles()
{
    std::vector<std::string> files;
    for (const auto& file : std::filesystem::directory_iterator(kDataFolder)) {
        const std::string name = file.path().filename();
        if (name.starts_with("Merovel.") && name.ends_with(".xml") && name != "Merovel.xml")
            files.push_back(file.path());
    }
    return files;
}

/// What a file has texts for, in its order. Each of them must have some, and a label of its own within its parent.
std::vector<std::string> describedIn(const std::string& path)
{
    XmlDocument file;
    XMLLoad(file, path);
    std::vector<std::string> described;
    std::set<std::string> labels;
    for (const ConstXmlNode& node : std::as_const(file).selectNodes("//*")) {
        const std::string name = node.name();
        const bool isNamedValue = name == "value" || name == "flag";
        const std::string place = NodeXPath(isNamedValue ? node.parent() : node);
        described.push_back(place + " " + node.attribute("raw") + " " + node.attribute("mask"));
        for (const char* text : {"label", "help", "text"}) {
            EXPECT_EQ(node.attribute(text).empty(), isNamedValue != (text == std::string_view("text")))
                << path << " " << described.back() << " " << text;
        }
        if (!isNamedValue) {
            EXPECT_TRUE(labels.insert(NodeXPath(node.parent()) + " " + node.attribute("label")).second)
                << path << " " << place << " has the label of another";
        }
    }
    return described;
}

} // namespace

TEST(TagDictionary, IsCompleteInEachOfItsLanguages)
{
    const std::vector<std::string> described = describedIn(kDataFolder + "Merovel.xml");
    EXPECT_FALSE(languageFiles().empty());
    for (const std::string& path : languageFiles())
        EXPECT_EQ(describedIn(path), described) << path;

    TagDictionary german(kDataFolder + "Merovel.xml");
    german.setTexts(kDataFolder + "Merovel.de.xml");
    const DictionaryEntry orientation = german.entry(kAnyOrientationPath);
    EXPECT_EQ(orientation.label(), "Ausrichtung");
    EXPECT_EQ(orientation.sourceLabel(), "Orientation");
    EXPECT_NE(orientation.help(), dictionary().entry(kAnyOrientationPath).help());
    EXPECT_EQ(valueText(orientation, "6", englishValueWords()), "nach rechts gedreht (6)");
}

TEST(TagDictionary, IsValidByItsDocumentType)
{
    if (!isInstalled("xmllint"))
        GTEST_SKIP() << "xmllint (libxml2-utils) is not installed";
    const auto check = [](const std::string& documentType, std::vector<std::string> files) {
        files.insert(files.begin(), {"xmllint", "--noout", "--dtdvalid", kDataFolder + documentType});
        const CommandRun run = runCommand(files);
        EXPECT_EQ(run.status, 0) << run.errors;
    };
    check("Merovel.dtd", {kDataFolder + "Merovel.xml"});
    check("Merovel-language.dtd", languageFiles());
}

} // namespace ovisto::test
