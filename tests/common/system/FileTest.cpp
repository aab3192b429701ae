// SPDX-License-Identifier: MIT

#include "common/system/File.h"
#include "common/system/FileNames.h"
#include "common/system/Process.h"
#include "common/system/ProgramFolder.h"
#include "support/JpegBytes.h"
#include "support/RecordingReporter.h"

#include <gtest/gtest.h>

#include <filesystem>

#include <sys/stat.h>

namespace ovisto::test {

namespace fs = std::filesystem;

TEST(InputFile, NamesWhyAPathCannotBeRead)
{
    const TemporaryFolder folder;
    EXPECT_EQ(errorNumberOf([&] { InputFile(folder.path("none.jpg")); }), kFileNotFound);
    EXPECT_EQ(errorNumberOf([&] { InputFile(folder.path("none/a.jpg")); }), kPathNotFound);
    EXPECT_EQ(errorNumberOf([&] { InputFile(folder.path("")); }), kPathAccessError) << "a folder";
    ASSERT_EQ(mkfifo(folder.path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(errorNumberOf([&] { InputFile(folder.path("pipe")); }), kPathAccessError) << "and does not wait for it";
}

TEST(OutputFile, ReplacesALeftoverButNotAFileThatIsBeingWritten)
{
    const TemporaryFolder folder;
    const std::string path = folder.file("~a.jpg", "left over");
    {
        OutputFile file(path);
        file.write(bytes("new"));
        file.flush();
        EXPECT_EQ(errorNumberOf([&] { OutputFile second(path); }), kPermissionDenied);
    }
    EXPECT_EQ(contentOf(path), bytes("new"));
    EXPECT_EQ(errorNumberOf([&] { OutputFile second(path); }), 0);
}

TEST(FileNames, MakesTemporaryNames)
{
    const std::string x(246, 'x');
    const struct {
        std::string path;
        int number;
        std::string temporary;
    } cases[] = {
        {"/a\\b/c\\d.jpg", 1, "/a\\b/~c\\d.jpg"},
        {"a.jpg", 12, "~12a.jpg"},
        {x + "12345.jpg", 1, "~" + x + "1234.jpg"},
        {x + "1é234.jpg", 10, "~10" + x + "1.jpg"},
        {"f/a." + std::string(253, 'x'), 2, "f/~2a." + std::string(251, 'x')},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(temporaryName(c.path, c.number), c.temporary);
        EXPECT_TRUE(isTemporaryName(c.temporary, c.path));
        EXPECT_FALSE(isTemporaryName(c.path, c.temporary));
    }
}

TEST(WriteTextFile, LeavesALinkThatLeadsNowhere)
{
    const TemporaryFolder folder;
    fs::create_symlink("none", folder.path("link"));
    EXPECT_EQ(errorNumberOf([&] { writeTextFile(folder.path("link"), "text"); }), kFileNotFound);
    EXPECT_EQ(folder.names(), std::vector<std::string>{"link"});
}

TEST(ProgramFolder, IsTheFolderOfAPortableCopy)
{
    const std::string own = fs::path(executablePath()).parent_path().string() + "/";
    EXPECT_EQ(ProgramFolder().data, own);
    EXPECT_EQ(ProgramFolder().writable, own);
}

} // namespace ovisto::test
