// SPDX-License-Identifier: MIT

#include "common/ErrorReport.h"
#include "common/FirstReport.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

namespace ovisto::test {

TEST(Phrase, PutsItsDetailsWhereTheTextHasTheirPlaces)
{
    const Phrase inner(Message::InContext, "100 %2", Phrase(Message::FilesFound, "3"));
    EXPECT_EQ(inEnglish({Message::InContext, "a", inner}), "a: 100 %2: List of files found (3)");
    const auto otherLanguage = [](Message message, std::optional<std::int64_t> /*count*/) {
        return message == Message::InContext ? std::string("%2 <- %1 (%3)") : std::string("x%1");
    };
    EXPECT_EQ(inner.words(otherLanguage), "x3 <- 100 %2 (%3)") << "a place without a detail stays";
    EXPECT_TRUE(Phrase(Message::FilesFound, "3") == Phrase(Message::FilesFound, "3"));
    EXPECT_FALSE(Phrase(Message::FilesFound, "3") == Phrase(Message::FilesFound, "4"));
}

TEST(ErrorReport, IsTheContextThenNumberAndDescriptionOnANewLine)
{
    EXPECT_EQ(inEnglish(errorReportText("Create file x", systemError(kDiskFull))), "Create file x\r\n61 : Disk full");
}

TEST(ErrorTrap, KeepsTheLatestErrorUntilItIsTaken)
{
    ErrorTrap trap;
    trap.run([] { throw systemError(kOverflow); });
    trap.run([] {});
    EXPECT_TRUE(trap.pending()) << "a step that succeeds clears nothing";
    trap.run([] { throw std::bad_alloc(); });
    EXPECT_EQ(trap.take().number, kOutOfMemory);
    trap.run([] { std::string().append(std::string::npos, 'x'); });
    EXPECT_EQ(trap.take().number, kOutOfMemory);
    trap.run([] { throw std::runtime_error("a library's own"); });
    EXPECT_EQ(trap.take().number, kInternalError);
    EXPECT_FALSE(trap.pending());
}

TEST(FirstReport, PutsItsContextBeforeTheErrorAndCutsItBetweenCharacters)
{
    FirstReport report;
    EXPECT_EQ(report.orElse(systemError(kOverflow)).number, kOverflow) << "nothing was reported";
    std::string context;
    for (int i = 0; i < 150; ++i)
        context += "aé";
    report.report(context, systemError(kDiskFull));
    report.report("the consequence", systemError(kInvalidCall));
    const Error error = report.orElse(systemError(kOverflow));
    EXPECT_EQ(error.number, kDiskFull);
    EXPECT_EQ(inEnglish(error.description), context.substr(0, 300) + "...: Disk full");
}

} // namespace ovisto::test
