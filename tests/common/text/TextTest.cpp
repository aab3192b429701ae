// SPDX-License-Identifier: MIT

#include "common/text/CodePage.h"
#include "common/text/Hex.h"
#include "common/text/NumberText.h"
#include "common/text/PathText.h"
#include "common/text/RegularExpression.h"
#include "common/text/Unicode.h"
#include "support/RecordingReporter.h"

#include <gtest/gtest.h>

namespace ovisto::test {

TEST(Hex, ReadsDigitsOfEitherCaseAndTakesOthersForZero)
{
    EXPECT_EQ(HexToByte("g1"), 1);
    EXPECT_EQ(HexToByte("fF"), 255);
    EXPECT_EQ(HexToByte("F"), 255) << "a single digit stands for both";
    EXPECT_EQ(Hex4ToLong("9C9B"), 40091);
    EXPECT_EQ(Hex4ToLong("a005"), 40965);
    EXPECT_EQ(Hex4ToLong(""), 0);
}

TEST(Hex, WritesTwoUpperCaseDigitsPerByteAndNumbersOfAWidth)
{
    std::string run = "x";
    appendHexRun(run, std::vector<std::uint8_t>{0x0A, 0xFF, 0xE1});
    EXPECT_EQ(run, "x0AFFE1");
    EXPECT_EQ(hexNumber(0), "0");
    EXPECT_EQ(hexNumber(0xFFDB), "FFDB");
    EXPECT_EQ(hexNumber(0x10F, 4), "010F");
}

TEST(CodePage, TakesEveryByteToACharacterAndBack)
{
    for (int byte = 0; byte < 256; ++byte) {
        EXPECT_EQ(codePageByte(codePageCharacter(static_cast<std::uint8_t>(byte))), byte);
        EXPECT_EQ(codePageByte(static_cast<char32_t>(byte)), byte) << "a reference names the byte itself";
    }
    EXPECT_EQ(codePageCharacter(0x80), U'€');
    EXPECT_EQ(codePageByte(U'“'), 0x93);
    EXPECT_EQ(codePageByte(U'Ж'), '?');
}

TEST(CodePage, CountsCharactersAndUnits)
{
    EXPECT_EQ(characterCount("aé€😀"), 4U);
    EXPECT_EQ(utf16("aé€😀").size(), 5U);
    EXPECT_EQ(characters("a\xFF"
                         "b"),
              U"a?b")
        << "a file name may hold any bytes";
}

TEST(RegularExpression, KnowsWhereWordsEndInAllScripts)
{
    const struct {
        const char* word;
        const char* text;
        bool asWord;
    } cases[] = {
        {"Ωμέγα", "Άλφα Ωμέγα.", true},
        {"Ωμέγα", "Ωμέγας", false},
        {"łąka", "(łąka)", true},
        {"łąka", "połąka", false},
        {"2019", "x2019", false},
        {"fé", "ca\"fé", true},
        {"title", "<dc:title>", true},
        {"été", "l'été", true},
        {"C\\+\\+", "C++ on", true},
        {"写真", "これは写真です", true}, // no spaces between words: any edge of a character
        {"2019", "2019年", true},
        {"เชียงใหม่", "ไปเชียงใหม่แล้ว", true},
        {"カメラ", "デジタルカメラ", false}, // runs of Katakana are words
        {"カメラ", "カメラと写真", true},
        {"デジタルカメラ", "デジタルカメラ", true},
        {"사진", "사진을", false},
        {"हिन्द", "हिन्दी", false}, // a vowel sign belongs to its letter
        {"کتاب", "کتاب\u200Cها", false},
        {"🌋", "Etna🌋", true},
        {"a\\Bb", "ab", true},
        {"写\\B真", "写真", false},
    };
    for (const auto& c : cases) {
        const RegularExpression word("\\b" + std::string(c.word) + "\\b", Letters::Unicode);
        EXPECT_EQ(word.matches(c.text), c.asWord) << c.word << " in " << c.text;
    }
}

TEST(NumberText, WritesSevenDigitsAndThenAnExponent)
{
    const struct {
        std::int64_t number;
        const char* text;
    } cases[] = {{0, "0"},
                 {-3, "-3"},
                 {9'999'999, "9999999"},
                 {10'000'000, "1E+07"},
                 {12'345'678, "1.234568E+07"},
                 {16'777'217, "1.677722E+07"},
                 {4'294'967'295, "4.294967E+09"}};
    for (const auto& c : cases)
        EXPECT_EQ(numberText(c.number), c.text);
}

TEST(NumberText, ReadsWholeNumbersHalvesToTheEvenOne)
{
    const struct {
        const char* text;
        std::int32_t number;
    } cases[] = {{"1.234568E+07", 12'345'680}, {"2.5", 2},   {"3.5", 4}, {" 7 ", 7}, {"+8", 8}, {"-1", -1},
                 {"2147483647", 2147483647},   {"1e2", 100}, {"007", 7}};
    for (const auto& c : cases)
        EXPECT_EQ(toLong(c.text), c.number) << c.text;
    EXPECT_EQ(attributeToLong(""), 0);
    EXPECT_EQ(attributeToLong("12"), 12);
}

TEST(NumberText, RefusesWhatIsNoNumberAndWhatDoesNotFit)
{
    for (const char* text : {"", " ", "abc", "1,2", "0x10", "inf", "nan", "1 2", "+-1", "--1", "1e"})
        EXPECT_EQ(errorNumberOf([&] { toLong(text); }), kTypeMismatch) << text;
    for (const char* text : {"2147483648", "-2147483649", "4.294967E+09", "1e400"})
        EXPECT_EQ(errorNumberOf([&] { toLong(text); }), kOverflow) << text;
    EXPECT_EQ(errorNumberOf([&] { attributeToLong("-5"); }), kTypeMismatch);
}

TEST(NumberText, HalvesOddNumbersOfDigitsToTheEvenCount)
{
    const std::int64_t halves[] = {0, 0, 1, 2, 2, 2, 3, 4, 4, 4, 5, 6};
    for (std::int64_t digits = 0; digits < 12; ++digits)
        EXPECT_EQ(halfToEven(digits), halves[digits]) << digits;
}

TEST(PathText, CutsAfterTheLastSeparatorOfEitherKind)
{
    EXPECT_EQ(splitPath("C:\\Photos\\a.jpg").folder, "C:\\Photos\\");
    EXPECT_EQ(splitPath("/x\\y/a.jpg").name, "a.jpg");
    EXPECT_EQ(splitPath("/x/y\\a.jpg").name, "a.jpg");
    EXPECT_EQ(splitPath("a.jpg").folder, "");
}

} // namespace ovisto::test
