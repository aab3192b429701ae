// SPDX-License-Identifier: MIT

#include "collection/KeywordFile.h"
#include "common/system/posix/SystemCalls.h"
#include "support/JpegBytes.h"
#include "support/RecordingReporter.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace ovisto::test {

TEST(KeywordFile, HasOneKeywordALine)
{
    const struct {
        const char* name;
        const char* content;
        std::vector<std::string> keywords;
    } cases[] = {
        {"an empty file", "", {""}},
        {"empty lines, and one behind the last line break", "\r\nbeach\r\n\r\nsea\r\n", {"", "beach", "", "sea", ""}},
        {"line feeds by themselves", "beach\nsea", {"beach\nsea"}},
        {"Windows-1252", "caf\xE9\r\n\x80", {"café", "€"}},
        {"UTF-8", "café", {"café"}}};
    for (const auto& row : cases) {
        const TemporaryFolder folder;
        const std::string file = folder.file("keywords.txt", row.content);
        std::vector<std::string> keywords{"old"};
        RecordingReporter reporter;
        loadKeywords(file, keywords, reporter);
        EXPECT_EQ(keywords, row.keywords) << row.name;
        EXPECT_TRUE(reporter.contexts.empty()) << row.name;
    }
}

TEST(KeywordFile, LeavesTheListWhenItCannotBeOpened)
{
    std::vector<std::string> keywords{"old"};
    RecordingReporter reporter;
    loadKeywords("/nowhere/keywords.txt", keywords, reporter);
    EXPECT_EQ(keywords, std::vector<std::string>{"old"});
    EXPECT_EQ(reporter.contexts, std::vector<std::string>{"Open File /nowhere/keywords.txt"});
}

TEST(KeywordFile, TakesNoMoreThanWasReadBeforeAnError)
{
    const TemporaryFolder folder;
    const std::string file = folder.file("keywords.txt", "beach");
    SystemCalls calls = systemCalls();
    calls.pread = [](int, void*, std::size_t, off_t) {
        errno = EIO;
        return ssize_t{-1};
    };
    const ReplacedSystemCalls replaced(calls);
    std::vector<std::string> keywords{"old"};
    RecordingReporter reporter;
    loadKeywords(file, keywords, reporter);
    EXPECT_EQ(keywords, std::vector<std::string>{""});
    EXPECT_EQ(reporter.contexts, std::vector<std::string>{"Read File " + file});
}

TEST(KeywordFile, SetsBlanksWhereTextStands)
{
    const struct {
        const char* name;
        const char* keyword;
        std::size_t length, start, selected;
        const char* insertion;
    } cases[] = {{"no text", "beach", 0, 0, 0, "beach"},      {"the end", "beach", 6, 6, 0, " beach"},
                 {"the start", "beach", 6, 0, 0, "beach "},   {"within", "beach", 6, 3, 0, "beach "},
                 {"all selected", "beach", 6, 0, 6, "beach"}, {"the end selected", "beach", 6, 3, 3, "beach"},
                 {"an empty keyword", "", 6, 6, 0, " "}};
    for (const auto& row : cases)
        EXPECT_EQ(keywordInsertion(row.keyword, row.length, row.start, row.selected), row.insertion) << row.name;
}

} // namespace ovisto::test
