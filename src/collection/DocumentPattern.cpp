// SPDX-License-Identifier: MIT

#include "collection/DocumentPattern.h"

#include "common/text/CodePage.h"
#include "common/text/Unicode.h"
#include "document/XmlText.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace ovisto {

namespace {

constexpr char32_t kFirstBeyondAscii = 128;

/// A letter of the code page beyond ASCII in its other case; any other character itself.
char32_t otherCase(char32_t letter)
{
    constexpr std::pair<char32_t, char32_t> kPairs[] = {
        {U'Š', U'š'}, {U'Œ', U'œ'}, {U'Ž', U'ž'}, {U'Ÿ', U'ÿ'}}; // not 32 apart as all others
    for (const auto& [upper, lower] : kPairs) {
        if (letter == upper || letter == lower)
            return letter == upper ? lower : upper;
    }
    if (letter >= U'À' && letter <= U'Þ' && letter != U'×')
        return letter + 32;
    if (letter >= U'à' && letter <= U'þ' && letter != U'÷')
        return letter - 32;
    return letter;
}

bool isLetterBeyondAscii(char32_t character)
{
    return otherCase(character) != character || std::u32string_view(U"ßªºƒ").find(character) != std::u32string::npos;
}

std::string textOf(char32_t character)
{
    std::string text;
    appendCharacter(text, character);
    return text;
}

/// The letters of the code page beyond ASCII, one behind the other; and as the references to them, with bars between.
struct Letters {
    std::string characters;
    std::string references;
};

const Letters& letters()
{
    static const Letters all = [] {
        Letters made;
        for (int byte = kFirstBeyondAscii; byte < 256; ++byte) {
            const char32_t character = codePageCharacter(static_cast<std::uint8_t>(byte));
            if (!isLetterBeyondAscii(character))
                continue;
            made.characters += textOf(character);
            made.references += (made.references.empty() ? "" : "|") + XMLSanitize(textOf(character));
        }
        return made;
    }();
    return all;
}

std::string edge(bool ofStart)
{
    const std::string letter = "[\\w" + letters().characters + "]";
    return ofStart ? "(?<!" + letter + ")(?<!" + letters().references + ")"
                   : "(?!" + letter + "|" + letters().references + ")";
}

/// A character in all the ways in which a document may have it.
std::string alternatives(char32_t character)
{
    std::vector<std::string> forms;
    const auto add = [&](const std::string& form) {
        if (std::ranges::find(forms, form) == forms.end())
            forms.push_back(form);
    };
    for (const char32_t letter : {character, otherCase(character)}) {
        const std::string text = textOf(letter);
        std::string bytes;
        appendCharacters(bytes, {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()}, ControlBytes::Keep);
        add(text);
        if (const std::string reference = XMLSanitize(text); reference.starts_with('&')) // "?" where there is none
            add(reference);
        add(bytes);
        add(XMLSanitize(bytes));
    }
    std::string pattern;
    for (const std::string& form : forms)
        pattern += (pattern.empty() ? "(?:" : "|") + form;
    return pattern + ")";
}

} // namespace

std::string documentPattern(std::string_view pattern)
{
    const std::u32string text = characters(pattern);
    const auto isLetterAt = [&](std::size_t place) { return place < text.size() && isLetterBeyondAscii(text[place]); };
    std::string made;
    bool inClass = false;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool isEscape = text[i] == U'\\' && i + 1 < text.size();
        if (isEscape && text[i + 1] == U'b' && !inClass && (isLetterAt(i + 2) || (i > 0 && isLetterAt(i - 1)))) {
            made += edge(isLetterAt(i + 2));
            ++i;
            continue;
        }
        if (isEscape)
            made += textOf(text[i++]);
        else if (text[i] == U'[')
            inClass = true;
        else if (text[i] == U']')
            inClass = false;
        else if (text[i] >= kFirstBeyondAscii && !inClass) {
            made += alternatives(text[i]);
            continue;
        }
        appendCharacter(made, text[i]);
    }
    return made;
}

} // namespace ovisto
