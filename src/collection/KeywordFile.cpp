// SPDX-License-Identifier: MIT

#include "collection/KeywordFile.h"

#include "common/system/File.h"
#include "common/text/CodePage.h"

#include <array>
#include <cstdint>
#include <optional>

namespace ovisto {

namespace {

/// The pieces between CR LF. A line feed by itself parts nothing: lists were always written with both.
std::vector<std::string> linesOf(const std::string& text)
{
    constexpr std::string_view kLineEnd = "\r\n";
    std::vector<std::string> lines;
    std::size_t start = 0;
    for (std::size_t end = text.find(kLineEnd); end != std::string::npos; end = text.find(kLineEnd, start)) {
        lines.push_back(text.substr(start, end - start));
        start = end + kLineEnd.size();
    }
    lines.push_back(text.substr(start));
    return lines;
}

/// Appends the whole file; what was read before an error stays.
void appendAll(std::string& content, const InputFile& file)
{
    std::array<std::uint8_t, 16'384> piece{};
    for (std::size_t count = piece.size(); count == piece.size();) {
        count = file.readAt(static_cast<std::int64_t>(content.size()), piece);
        content.append(reinterpret_cast<const char*>(piece.data()), count);
    }
}

} // namespace

void loadKeywords(const std::string& path, std::vector<std::string>& keywords, ErrorReporter& reporter)
{
    std::optional<InputFile> file;
    if (!attempt(reporter, Phrase(Message::OpenFile, path), [&] { file.emplace(path); }))
        return;
    std::string content;
    ErrorTrap trap; // what was read before an error counts
    trap.run([&] { appendAll(content, *file); });
    keywords = linesOf(decodedText(content));
    reportPending(reporter, Phrase(Message::ReadFile, path), trap);
}

std::string keywordInsertion(const std::string& keyword, std::size_t length, std::size_t selectionStart,
                             std::size_t selectionLength)
{
    const bool atEnd = selectionStart == length && length > 0;
    const bool textFollows = selectionStart + selectionLength < length;
    return (atEnd ? " " : "") + keyword + (textFollows ? " " : "");
}

} // namespace ovisto
