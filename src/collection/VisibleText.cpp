// SPDX-License-Identifier: MIT

#include "collection/VisibleText.h"

#include "common/text/CaseFolding.h"
#include "common/text/Unicode.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <iterator>
#include <optional>
#include <utility>

namespace ovisto {

namespace {

constexpr std::pair<std::string_view, char32_t> kEntities[] = {
    {"quot", U'"'}, {"apos", U'\''}, {"lt", U'<'}, {"gt", U'>'}, {"amp", U'&'}};

/// The character that a reference of this name ("amp", "#233", "#xE9") stands for.
std::optional<char32_t> referredCharacter(std::string_view name)
{
    if (!name.starts_with('#')) {
        const auto* entity = std::ranges::find(kEntities, name, [](const auto& row) { return row.first; });
        return entity != std::end(kEntities) ? std::optional(entity->second) : std::nullopt;
    }
    name.remove_prefix(1);
    const bool isHexadecimal = name.starts_with('x');
    name.remove_prefix(isHexadecimal ? 1 : 0);
    std::uint32_t number = 0;
    const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), number, isHexadecimal ? 16 : 10);
    constexpr std::uint32_t kLastCharacter = 0x10FFFF;
    const bool isSurrogate = number >= 0xD800 && number <= 0xDFFF;
    if (error != std::errc() || end != name.data() + name.size() || number > kLastCharacter || isSurrogate)
        return std::nullopt;
    return char32_t{number};
}

void resolveReferences(std::string& text)
{
    constexpr std::size_t kLongestReference = 10; // "&#x10FFFF;"
    std::size_t next = text.find('&');
    if (next == std::string::npos)
        return;
    std::string resolved;
    resolved.reserve(text.size());
    std::size_t copied = 0;
    for (; next != std::string::npos; next = text.find('&', next + 1)) {
        const std::string_view rest = std::string_view(text).substr(next, kLongestReference);
        const std::size_t end = rest.find(';');
        const auto character =
            end != std::string_view::npos ? referredCharacter(rest.substr(1, end - 1)) : std::nullopt;
        if (!character)
            continue;
        resolved.append(text, copied, next - copied);
        appendCharacter(resolved, *character);
        copied = next + end + 1;
    }
    resolved.append(text, copied);
    text = std::move(resolved);
}

/// Where the next section of the same payload goes on, if one ended before `place`: the writer of a document divides
/// them at their own end mark, and at CR.
std::size_t sectionGoesOn(std::string_view text, std::size_t place)
{
    constexpr std::string_view kStart = "<![CDATA[";
    const std::size_t start = place + (text.substr(place).starts_with('\r') ? 1 : 0);
    return text.substr(start).starts_with(kStart) ? start + kStart.size() : std::string_view::npos;
}

void joinSections(std::string& text)
{
    constexpr std::string_view kEnd = "]]>";
    std::string joined;
    std::size_t copied = 0;
    for (std::size_t end = text.find(kEnd); end != std::string::npos; end = text.find(kEnd, end + 1)) {
        const std::size_t goesOn = sectionGoesOn(text, end + kEnd.size());
        if (goesOn == std::string::npos)
            continue;
        joined.append(text, copied, end - copied);
        if (text[end + kEnd.size()] == '\r')
            joined += '\r';
        copied = goesOn;
    }
    if (copied > 0)
        text = std::move(joined.append(text, copied));
}

} // namespace

std::string visibleText(std::string documentText)
{
    resolveReferences(documentText);
    joinSections(documentText);
    return documentText;
}

std::string foldedPattern(std::string_view pattern)
{
    constexpr char32_t kFirstBeyondAscii = 128;
    const std::u32string composed = characters(composedText(pattern));
    std::string made;
    bool inClass = false;
    for (std::size_t i = 0; i < composed.size(); ++i) {
        const char32_t character = composed[i];
        if (character >= kFirstBeyondAscii && !inClass) {
            std::string text;
            appendCharacter(text, character);
            text = foldedText(text);
            made += characterCount(text) == 1 ? text : "(?:" + text + ")";
            continue;
        }
        appendCharacter(made, character);
        if (character == U'\\' && i + 1 < composed.size())
            appendCharacter(made, composed[++i]);
        else if (character == U'[' || character == U']')
            inClass = character == U'[';
    }
    return made;
}

} // namespace ovisto
