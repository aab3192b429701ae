// SPDX-License-Identifier: MIT

#include "document/ValueText.h"
#include "document/DataType.h"
#include "support/Dictionary.h"

#include <gtest/gtest.h>

namespace ovisto::test {

namespace {

/// The entry of a tag: "9209" of shooting data, "IFDG/0002", "Exif/0112" of the first directory, or the name of a node.
DictionaryEntry entryOf(const std::string& tag)
{
    const std::string exif = "/JPEG/Exif[@id='FFE1']";
    if (tag.starts_with("/"))
        return dictionary().entryAt(tag);
    const std::size_t stroke = tag.find('/');
    const std::string id = "/IFD[@id='" + tag.substr(stroke + 1) + "']";
    if (stroke == std::string::npos)
        return dictionary().entryAt(exif + "/IFDE" + id);
    return dictionary().entryAt(exif + (tag.starts_with("Exif") ? "" : "/" + tag.substr(0, stroke)) + id);
}

/// Words of another language, of which there are few.
class OtherWords : public ValueWords {
public:
    OtherWords() { mostCharacters = 12; }
    std::string number(double number, int decimals) const override
    {
        std::string text = ValueWords::number(number, decimals);
        for (char& character : text)
            character = character == '.' ? ',' : character == ',' ? '.' : character;
        return text;
    }
    std::string moment(const Moment& moment) const override { return moment.time ? "jetzt" : "heute"; }
    std::string phrase(const Phrase& phrase) const override { return "<" + inEnglish(phrase) + ">"; }
};

} // namespace

TEST(ValueText, IsWhatTheCameraMeantOrTheRawText)
{
    const std::string thumbnail = "/JPEG/Exif[@id='FFE1']/IFD1/THUM";
    const std::string comment = "/JPEG/APP1[@id='FFFE']";
    const struct {
        std::string tag;
        std::string raw;
        std::string text;
    } cases[] = {
        // what does not fit its format
        {"829A", "", ""},
        {"829A", "0/0", "0/0"},
        {"829A", "0/1", "0/1"},
        {"829A", "1/0", "1/0"},
        {"829A", "1/125,", "1/125,"},
        {"829A", "inf/1", "inf/1"},
        {"829A", "-1/125", "-1/125"},
        {"829D", "0/10", "0/10"},
        {"829D", "4.294967E+09/10", "4.294967E+09/10"},
        {"9201", "4000000/1", "4000000/1"},
        {"9204", "4.294967E+09/3", "4.294967E+09/3"},
        {"9403", "4.294967E+09/1000", "4.294967E+09/1000"},
        {"9003", "    :  :     :  :  ", "    :  :     :  :  "},
        {"9003", "2023:02:29 06:42:18", "2023:02:29 06:42:18"},
        {"9003", "2023:257:01 06:42:18", "2023:257:01 06:42:18"},
        {"9003", "2023:05:14 24:00:00", "2023:05:14 24:00:00"},
        {"9003", "06:42:18", "06:42:18"},
        {"9209", "2", "2"},
        {"9209", "-1", "-1"},
        {"9209", "256", "256"},
        {"9207", "7", "7"},
        {"Exif/0112", "6,9", "6,9"},
        {"9000", "022x", "022x"},
        {"A300", "0301", "0301"},
        {"A302", "0200030000010102", "0200030000010102"},
        {"A432", "0/0,0/0,0/0,0/0", "0/0,0/0,0/0,0/0"},
        {"IFDG/0002", "0/0,0/0,0/0", "0/0,0/0,0/0"},
        {"IFDG/0002", "50/1,3/1", "50/1,3/1"},
        {"IFDG/0002", "361/1,0/1,0/1", "361/1,0/1,0/1"},
        {"IFDG/0007", "14/1,60/1,30/1", "14/1,60/1,30/1"},
        {"Exif/011A", "1/100000", "1/100000"},
        {thumbnail, "FFD8FFE000104A46", "FFD8FFE000104A46"},
        {thumbnail, "x0112233445566778899", "x0112233445566778899"},
        {"Exif/0201", "4294967295", "4294967295"},
        {"FFFF", "1/125", "1/125"},
        // exposures
        {"829A", "10/1250", "1/125 s"},
        {"829A", "16667/1000000", "1/60 s"},
        {"829A", "1/3", "1/3 s"},
        {"829A", "77/100", "0.77 s"},
        {"829A", "30/1", "30 s"},
        {"9201", "49471/7102", "1/125 s"},
        {"9201", "-3/1", "8 s"},
        {"829D", "8/1", "f/8"},
        {"829D", "178/100", "f/1.78"},
        {"9202", "3/1", "f/2.8"},
        {"9203", "-3/2", "-1.5 EV"},
        {"9204", "0/6", "0 EV"},
        {"9204", "33/100", "+1/3 EV"},
        {"9204", "-2/3", "-2/3 EV"},
        {"9204", "-3/2", "-1 1/2 EV"},
        {"9204", "3/10", "+0.3 EV"},
        {"9204", "-1/1", "-1 EV"},
        // lenses and distances
        {"920A", "24/1", "24 mm"},
        {"920A", "425/100", "4.25 mm"},
        {"A405", "24", "24 mm"},
        {"A405", "0", "unknown (0)"},
        {"A432", "24/1,70/1,14/5,4/1", "24-70 mm f/2.8-4"},
        {"A432", "50/1,50/1,18/10,18/10", "50 mm f/1.8"},
        {"A432", "24/1,70/1,0/0,0/0", "24-70 mm"},
        {"A404", "0/10", "not used (0/10)"},
        {"A404", "20/10", "2"},
        {"9206", "4294967295/1", "infinity"},
        {"9206", "4.294967E+09/1", "infinity"},
        {"9206", "25/10", "2.5 m"},
        // values, flags and bytes with names
        {"Exif/0112", "6", "turned right (6)"},
        {"9207", "5", "pattern (5)"},
        {"Exif/0153", "1,1,1", "whole numbers without sign (1,1,1)"},
        {"Exif/0153", "1,3", "whole numbers without sign, floating point (1,3)"},
        {"Exif/0212", "2,1", "4:2:2, half the width (2,1)"},
        {"9209", "0", "not fired (0x00)"},
        {"9209", "31", "fired, return light detected, automatic (0x1F)"},
        {"9209", "89", "fired, automatic, red-eye reduction (0x59)"},
        {"Exif/00FE", "0", "full-size image (0x00)"},
        {"Exif/0124", "5", "two-dimensional coding, fill bits (0x05)"},
        {"A300", "03000000", "digital camera (03000000)"},
        {"A300", "03", "digital camera (03)"},
        {"A300", "3", "digital camera (3)"},
        {"9101", "01020300", "Y, Cb, Cr, none (01020300)"},
        {"A302", "0002000200010102", "red, green / green, blue"},
        {"A302", "0200020001000201", "green, red / blue, green"},
        {"IFDG/0001", "N", "north (N)"},
        {"IFDG/0005", "01", "below sea level (01)"},
        // the rest
        {"9003", "2023:05:14 06:42:18", "2023-05-14 06:42:18"},
        {"9003", "2023-05-14 06:42:18 ", "2023-05-14 06:42:18"},
        {"IFDG/001D", "2023:05:14", "2023-05-14"},
        {"IFDG/0007", "14/1,5/1,61/2", "14:05:30.5"},
        {"IFDG/0002", "50/1,3/1,4123/100", "50° 3' 41.23\""},
        {"IFDG/0002", "50/1,36871/1000,0/0", "50° 36' 52.26\""},
        {"IFDG/0002", "49/1,59/1,59999/1000", "50° 0' 0\""},
        {"9000", "0220", "2.2"},
        {"9000", "0232", "2.32"},
        {"IFDG/0000", "02030000", "2.3.0.0"},
        {"IFDG/0006", "12345678/1000", "12,345.68 m"},
        {"Exif/0214", "0/1,255/1,1285/10", "0, 255, 128.5"},
        {"Exif/0202", "23481", "23,481 bytes"},
        {"Exif/0202", "1", "1 byte"},
        {thumbnail, std::string(46962, 'A'), "23,481 bytes"},
        {comment, "4772C3BCC39F650000", "Grüße"},
        {comment, "0001", "0001"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(valueText(entryOf(c.tag), c.raw, englishValueWords()), c.text) << c.tag << " " << c.raw;
    EXPECT_FALSE(entryOf("FFFF"));
}

TEST(ValueText, TakesWordsAndFormsFromItsCaller)
{
    const OtherWords words;
    EXPECT_EQ(valueText(entryOf("829A"), "13/10", words), "<1,3 s>");
    EXPECT_EQ(valueText(entryOf("Exif/0202"), "23481", words), "<23.481 byte...");
    EXPECT_EQ(valueText(entryOf("9003"), "2023:05:14 06:42:18", words), "jetzt");
    EXPECT_EQ(valueText(entryOf("IFDG/001D"), "2023:05:14", words), "heute");
    EXPECT_EQ(valueText(entryOf("Exif/010E"), "Häuser, Dächer und Schornsteine", words), "Häuser, Däch...");
}

TEST(ValueText, KnowsBytesFromNumbersAndTexts)
{
    const ValueWords& words = englishValueWords();
    EXPECT_EQ(valueMeaning(entryOf("9209"), "10", kByte, words), "not fired, forced off (0x10)");
    EXPECT_FALSE(valueMeaning(entryOf("9209"), "10", kShort, words));
    EXPECT_EQ(valueMeaning(entryOf("IFDG/0005"), "1", kShort, words), "below sea level (1)");
    const std::string digits(20, '0');
    EXPECT_EQ(valueMeaning(entryOf("8828"), digits, kByte, words), "10 bytes");
    EXPECT_FALSE(valueMeaning(entryOf("8828"), digits, kUndefined, words)) << "a text of digits";
}

TEST(ValueText, FindsTheEntriesOfNodesInAnyDocument)
{
    XmlDocument combined;
    ASSERT_FALSE(combined.loadText("<JPEGs><JPEG><Exif id='FFE1'><IFD id='0112' d='3'>6</IFD></Exif>"
                                   "<IFD id=\"'\">6</IFD></JPEG></JPEGs>"));
    const ValueTexts texts{.dictionary = &dictionary()};
    EXPECT_EQ(texts.of(combined.selectSingleNode("//Exif/IFD")), "turned right (6)");
    EXPECT_EQ(texts.of(combined.selectSingleNode("//JPEG/IFD")), "6");
    EXPECT_EQ(ValueTexts().of(combined.selectSingleNode("//Exif/IFD")), "6");
}

} // namespace ovisto::test
