#include "common/system/File.h"
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

TEST(ProgramFolder, IsTheFolderOfAPortableCopy)
{
    const std::string own = fs::path(executablePath()).parent_path().string() + "/";
    EXPECT_EQ(ProgramFolder().data, own);
    EXPECT_EQ(ProgramFolder().writable, own);
}

} // namespace ovisto::test
