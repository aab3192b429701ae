// SPDX-License-Identifier: MIT

#include "common/text/Splitting.h"

namespace ovisto {

std::vector<std::string_view> split(std::string_view text, char separator)
{
    std::vector<std::string_view> pieces;
    for (std::size_t end = text.find(separator); end != std::string_view::npos; end = text.find(separator)) {
        pieces.push_back(text.substr(0, end));
        text.remove_prefix(end + 1);
    }
    pieces.push_back(text);
    return pieces;
}

std::string_view trimmed(std::string_view text)
{
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

} // namespace ovisto
