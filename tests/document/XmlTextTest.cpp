// SPDX-License-Identifier: MIT

#include "document/XmlText.h"

#include <gtest/gtest.h>

namespace ovisto::test {

TEST(XmlText, EscapesMarkupAndEverythingOutsideAscii)
{
    const struct {
        const char* text;
        const char* escaped;
    } cases[] = {{"a<b & 'c'", "a&lt;b &amp; &apos;c&apos;"},
                 {"\">", "&quot;&gt;"},
                 {"a\nb\t", "a&#10;b&#9;"},
                 {"é", "&#233;"},
                 {"€\x7F", "€\x7F"},
                 {"\u201A", "&#130;"},
                 {"\u0081", "&#129;"},
                 {"Ж😀", "??"},
                 {"\xFFz", "?z"}};
    for (const auto& c : cases)
        EXPECT_EQ(XMLSanitize(c.text), c.escaped);
    EXPECT_EQ(xmlAtt("id", "010F"), " id=\"010F\"");
    EXPECT_EQ(xmlAtt("offset", 12'345'678), " offset=\"1.234568E+07\"");
    EXPECT_FALSE(StringHasControlChars(""));
    EXPECT_FALSE(StringHasControlChars("é"));
    EXPECT_TRUE(StringHasControlChars("a\tb"));
}

} // namespace ovisto::test
