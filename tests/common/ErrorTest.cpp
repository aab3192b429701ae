#include "common/ErrorReport.h"
#include "common/FirstReport.h"

#include <gtest/gtest.h>

namespace ovisto::test {

TEST(ErrorReport, IsTheContextThenNumberAndDescriptionOnANewLine)
{
    EXPECT_EQ(errorReportText("Create file x", systemError(kDiskFull)), "Create file x\r\n61 : Disk full");
}

TEST(ErrorTrap, KeepsTheLatestErrorUntilItIsTaken)
{
    ErrorTrap trap;
    trap.run([] { throw systemError(kOverflow); });
    trap.run([] {});
    EXPECT_TRUE(trap.pending()) << "a step that succeeds clears nothing";
    trap.run([] { throw std::bad_alloc(); });
    EXPECT_EQ(trap.take().number, kOutOfMemory);
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
    EXPECT_EQ(error.description, context.substr(0, 300) + "...: Disk full");
}

} // namespace ovisto::test
