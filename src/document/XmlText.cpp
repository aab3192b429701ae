// SPDX-License-Identifier: MIT

#include "document/XmlText.h"

#include "common/text/CodePage.h"
#include "common/text/NumberText.h"
#include "common/text/Unicode.h"

#include <algorithm>
#include <array>
#include <iterator>

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

/// A markup character and the entity that stands for it.
struct Entity {
    char32_t character;
    std::string_view text;
};

constexpr Entity kEntities[] = {{'"', "&quot;"}, {'\'', "&apos;"}, {'<', "&lt;"}, {'>', "&gt;"}, {'&', "&amp;"}};

bool appendEntity(std::string& text, char32_t character)
{
    const auto* entity = std::ranges::find(kEntities, character, &Entity::character);
    if (entity == std::end(kEntities))
        return false;
    text += entity->text;
    return true;
}

void appendReference(std::string& text, char32_t character)
{
    text.append("&#").append(std::to_string(static_cast<std::uint32_t>(character))).append(";");
}

void appendSanitized(std::string& text, char32_t character)
{
    const std::uint8_t code = codePageByte(character);
    if (appendEntity(text, code))
        return;
    if (code >= kFirstKept && code < kFirstReferenced)
        appendCharacter(text, codePageCharacter(code));
    else
        appendReference(text, code);
}

void appendEscaped(std::string& text, char32_t character)
{
    if (appendEntity(text, character))
        return;
    constexpr char32_t kLastC1Control = 159;
    const char32_t shown = xmlCharacter(character);
    if (shown < kFirstKept || (shown >= kFirstReferenced && shown <= kLastC1Control))
        appendReference(text, shown);
    else
        appendCharacter(text, shown);
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

std::string escapedText(std::string_view text)
{
    if (std::ranges::all_of(text, isPlain))
        return std::string(text);
    std::string escaped;
    forEachCharacter(text, [&](char32_t character) { appendEscaped(escaped, character); });
    return escaped;
}

std::string attributeText(std::string_view name, std::string_view value)
{
    std::string attribute(" ");
    return attribute.append(name).append("=\"").append(escapedText(value)).append("\"");
}

std::string cdataText(std::string_view text)
{
    struct Divider {
        std::string_view text;
        std::string_view written;
    };
    constexpr Divider kDividers[] = {{"]]>", "]]]]><![CDATA[>"}, {"\r", "]]>&#13;<![CDATA["}};
    std::string sections = "<![CDATA[";
    while (!text.empty()) {
        const auto* divider =
            std::ranges::find_if(kDividers, [&](const Divider& row) { return text.starts_with(row.text); });
        if (divider != std::end(kDividers)) {
            sections += divider->written;
            text.remove_prefix(divider->text.size());
            continue;
        }
        const std::size_t end = std::min(text.find_first_of("]\r", 1), text.size());
        sections += text.substr(0, end);
        text.remove_prefix(end);
    }
    return sections += "]]>";
}

bool StringHasControlChars(std::string_view Value)
{
    return std::ranges::any_of(Value, [](char byte) { return static_cast<std::uint8_t>(byte) < kFirstKept; });
}

} // namespace ovisto
