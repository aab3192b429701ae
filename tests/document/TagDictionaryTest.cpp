#include "document/TagDictionary.h"
#include "common/text/Hex.h"
#include "document/DataType.h"
#include "document/NodePath.h"
#include "support/CommandRun.h"

#include <gtest/gtest.h>

#include <set>

namespace ovisto::test {

namespace {

const TagDictionary& dictionary()
{
    static const TagDictionary dictionary(OVISTO_DATA_FOLDER "Merovel.xml");
    return dictionary;
}

} // namespace

TEST(TagDictionary, IsCompleteForEveryEntry)
{
    std::set<std::string> paths;
    for (const ConstXmlNode& node : dictionary().document().selectNodes("//*")) {
        const DictionaryEntry entry(node);
        const std::string path = entry.path();
        EXPECT_TRUE(paths.insert(path).second) << path << " stands twice";
        EXPECT_NE(entry.label(), "") << path;
        EXPECT_GT(entry.help().size(), 20U) << path;
        EXPECT_EQ(AttributeGet(node, "vis").find_first_not_of("012"), std::string::npos) << path;
        EXPECT_EQ(AttributeGet(node, "prot").find_first_not_of("012"), std::string::npos) << path;
        const std::string name = node.name();
        const bool isContainer = name == "JPEG" || name == "Exif" || name == "IFDE" || name == "IFDI" || name == "IFD1";
        EXPECT_EQ(isContainer, !entry.hasDataType()) << path;
        if (!isContainer) {
            EXPECT_NE(dataTypeName(entry.dataType()), "") << path;
        }
        const DictionaryEntry above(node.parent());
        EXPECT_FALSE(entry.visibility() == Visibility::Shown && above.visibility() != Visibility::Shown)
            << path << " would never be seen";
    }
    EXPECT_GT(paths.size(), 300U);
}

TEST(TagDictionary, HoldsWhatTheProgramLooksUp)
{
    const char* required[] = {"/JPEG/Exif/IFD[@id='8769']",
                              "/JPEG/Exif/IFDE/IFD[@id='A005']",
                              "/JPEG/Exif/IFDE/IFD[@id='927C']",
                              "/JPEG/Exif/IFD1/IFD[@id='0201']",
                              "/JPEG/Exif/IFD1/IFD[@id='0202']",
                              "/JPEG/SOS",
                              "/JPEG/IMG",
                              "/JPEG"};
    for (const char* path : required)
        EXPECT_EQ(dictionary().entry(path).protection(), Protection::Required) << path;
    const char* present[] = {"/JPEG/Exif[@id='FFE1']/IFDE/MAKE", "/JPEG/Exif[@id='FFE1']/IFDI",
                             "/JPEG/Exif[@id='FFE1']/IFD1/THUM", "/JPEG/Exif/IFD1/IFD[@id='0103']",
                             "/JPEG/Exif1[@id='FFE1']",          "/JPEG/APP0"};
    for (const char* path : present)
        EXPECT_TRUE(dictionary().entry(path)) << path;
    for (const char* id : {"9C9B", "9C9C", "9C9D", "9C9E", "9C9F"})
        EXPECT_EQ(dictionary().entry("/JPEG/Exif[@id='FFE1']/IFD[@id='" + std::string(id) + "']").dataType(), kUnicodeString);
    for (std::uint32_t marker = 0xFFC0; marker <= 0xFFFE; ++marker) {
        const bool hasElement = marker == 0xFFDA || marker == 0xFFE0 || marker == 0xFFE1;
        const DictionaryEntry entry = dictionary().entry("/JPEG/APP1[@id='" + hexNumber(marker) + "']");
        EXPECT_EQ(static_cast<bool>(entry), !hasElement) << hexNumber(marker);
        const bool isOfImage = (marker < 0xFFE0 && !hasElement) || marker == 0xFFF7 || marker == 0xFFF8; // JPEG-LS
        EXPECT_EQ(entry.protection() == Protection::Required, isOfImage) << hexNumber(marker);
    }
}

TEST(TagDictionary, IsValidByItsDocumentType)
{
    if (!isInstalled("xmllint"))
        GTEST_SKIP() << "xmllint (libxml2-utils) is not installed";
    const CommandRun run = runCommand(
        {"xmllint", "--noout", "--dtdvalid", OVISTO_DATA_FOLDER "Merovel.dtd", OVISTO_DATA_FOLDER "Merovel.xml"});
    EXPECT_EQ(run.status, 0) << run.errors;
}

} // namespace ovisto::test
