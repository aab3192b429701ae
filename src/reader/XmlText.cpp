#include "reader/XmlText.h"

#include "common/CodePage.h"
#include "common/NumberText.h"

#include <algorithm>

namespace ovisto {

namespace {

constexpr std::uint8_t kFirstKept = 32;
constexpr std::uint8_t kFirstReferenced = 129; // not 128, the euro sign: documents in use have it as it is

constexpr bool isPlain(char character)
{
    constexpr std::string_view kMarkup = "\"'<>&";
    const auto code = static_cast<std::uint8_t>(character);
    return code >= kFirstKept && code < 128 && kMarkup.find(character) == std::string_view::npos;
}

void appendSanitized(std::string& text, char32_t character)
{
    const std::uint8_t code = codePageByte(character);
    switch (code) {
    case '"':
        text += "&quot;";
        break;
    case '\'':
        text += "&apos;";
        break;
    case '<':
        text += "&lt;";
        break;
    case '>':
        text += "&gt;";
        break;
    case '&':
        text += "&amp;";
        break;
    default:
        if (code >= kFirstKept && code < kFirstReferenced)
            appendCharacter(text, codePageCharacter(code));
        else
            text += "&#" + std::to_string(code) + ";";
    }
}

} // namespace

std::string xmlAtt(std::string_view attName, std::string_view attVal)
{
    std::string attribute(" ");
    attribute += attName;
    attribute += "=\"";
    attribute += XMLSanitize(attVal);
    attribute += '"';
    return attribute;
}

std::string xmlAtt(std::string_view attName, std::int64_t attVal)
{
    return xmlAtt(attName, numberText(attVal));
}

std::string XMLSanitize(std::string_view Value)
{
    if (std::ranges::all_of(Value, isPlain))
        return std::string(Value);
    std::string text;
    forEachCharacter(Value, [&](char32_t character) { appendSanitized(text, character); });
    return text;
}

bool StringHasControlChars(std::string_view Value)
{
    return std::ranges::any_of(Value, [](char byte) { return static_cast<std::uint8_t>(byte) < kFirstKept; });
}

} // namespace ovisto
