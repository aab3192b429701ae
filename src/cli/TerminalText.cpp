// SPDX-License-Identifier: MIT

#include "cli/TerminalText.h"

#include "common/text/Columns.h"
#include "common/text/Unicode.h"

#include <algorithm>

namespace ovisto {

namespace {

constexpr std::size_t kMostColumns = 400;

constexpr bool isControl(char32_t character)
{
    return character < 0x20 || (character >= 0x7F && character < 0xA0);
}

} // namespace

std::string errorLine(const Phrase& context, const Phrase& message)
{
    const std::string path = inEnglish(context);
    const bool namesFileLast = message.message() == Message::OpenFailed;
    const std::string reason = inEnglish(namesFileLast ? message.as(Message::FileNotOpened) : message);
    const bool named = path.empty() || reason.ends_with(" " + path) || reason.starts_with(path + ": ");
    const std::string start = named ? "" : oneLine(path) + ": ";
    return "ovisto-cli: " + start + oneLine(reason, kMostColumns + path.size()) + "\n";
}

std::string oneLine(const std::string& text, std::size_t mostColumns)
{
    const bool isPlain = std::ranges::all_of(text, [](char character) { return character >= ' ' && character < 0x7F; });
    if (isPlain && text.size() <= mostColumns)
        return text; // as most are
    std::string line;
    std::size_t columns = 0;
    bool blank = false;
    for (const char32_t character : characters(text)) {
        if (isControl(character)) {
            blank = true;
            continue;
        }
        if (blank && !line.empty())
            line += ' ';
        blank = false;
        columns += static_cast<std::size_t>(columnsOf(character));
        if (columns > mostColumns)
            return line + "...";
        appendCharacter(line, character);
    }
    return line;
}

std::string groupedNumber(std::size_t number)
{
    std::string text = std::to_string(number);
    for (std::size_t place = text.size(); place > 3;)
        text.insert(place -= 3, ",");
    return text;
}

} // namespace ovisto
