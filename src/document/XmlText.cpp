#include "document/XmlText.h"

#include "common/text/CodePage.h"
#include "common/text/NumberText.h"
#include "common/text/Unicode.h"

#include <algorithm>
#include <array>

namespace ovisto {

namespace {

constexpr std::uint8_t kFirstKept = 32;
constexpr std::uint8_t kFirstReferenced = 129; // not 128, the euro sign: documents in use have it as it is

/// Which bytes stand for themselves, as nearly all do.
constexpr auto kPlain = [] {
    std::array<bool, 256> plain{};
    for (std::size_t code = kFirstKept; code < 128; ++code)
        plain[code] = true;
    for (const char markup : {'"', '\'', '<', '>', '&'})
        plain[static_cast<std::uint8_t>(markup)] = false;
    return plain;
}();

bool isPlain(char character)
{
    return kPlain[static_cast<std::uint8_t>(character)];
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
