// SPDX-License-Identifier: MIT

#include "common/Phrase.h"

#include <string_view>

namespace ovisto {

namespace {

/// No character (UTF-8) is cut in two.
std::string cut(std::string text, std::size_t most)
{
    std::size_t count = 0;
    for (std::size_t place = 0; place < text.size(); ++place) {
        const bool startsCharacter = (text[place] & 0xC0) != 0x80;
        if (startsCharacter && ++count > most)
            return text.substr(0, place) + "...";
    }
    return text;
}

/// `text` with the details in the places of %1, %2 and so on. What stands in a detail is not a place.
std::string filled(std::string_view text, const std::vector<std::string>& details)
{
    std::string words;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const char next = i + 1 < text.size() ? text[i + 1] : '\0';
        const auto number = static_cast<std::size_t>(next - '0');
        if (text[i] == '%' && next >= '1' && number <= details.size()) {
            words += details[number - 1];
            ++i;
        } else {
            words += text[i];
        }
    }
    return words;
}

} // namespace

Phrase Phrase::as(Message message) const
{
    Phrase phrase = *this;
    phrase.m_message = message;
    return phrase;
}

Phrase Phrase::shortened(std::size_t most) const
{
    Phrase phrase = *this;
    phrase.m_most = most;
    return phrase;
}

/// The number of things that the phrase is about.
std::optional<std::int64_t> Phrase::counted() const
{
    const auto place = static_cast<std::size_t>(countedDetail(m_message));
    return place > 0 && place <= m_details.size() ? m_details[place - 1].m_count : std::nullopt;
}

std::string Phrase::words(const TextOf& textOf) const
{
    if (m_message == Message::AsItIs)
        return cut(m_text, m_most);
    std::vector<std::string> details;
    for (const Phrase& detail : m_details)
        details.push_back(detail.words(textOf));
    return cut(filled(textOf(m_message, counted()), details), m_most);
}

std::string inEnglish(const Phrase& phrase)
{
    return phrase.words([](Message message, std::optional<std::int64_t> count) { return sourceText(message, count); });
}

} // namespace ovisto
