#include "common/system/File.h"
#include "common/system/FileReplacement.h"
#include "common/system/Process.h"
#include "common/system/ProgramFolder.h"
#include "support/JpegBytes.h"
#include "support/RecordingReporter.h"

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>

#include <sys/resource.h>
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

TEST(OutputFile, SaysThatTheDiskIsFull)
{
    const TemporaryFolder folder;
    const auto oldHandler = std::signal(SIGXFSZ, SIG_IGN);
    rlimit oldLimit{};
    getrlimit(RLIMIT_FSIZE, &oldLimit);
    const rlimit limit{100'000, oldLimit.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
    int error = 0;
    {
        OutputFile file(folder.path("a"));
        error = errorNumberOf([&] {
            file.write(Bytes(150'000));
            file.sync();
        });
    }
    setrlimit(RLIMIT_FSIZE, &oldLimit);
    std::signal(SIGXFSZ, oldHandler);
    EXPECT_EQ(error, kDiskFull);
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

TEST(ReplaceFile, KeepsALinkALinkAndTakesPermissions)
{
    const TemporaryFolder folder;
    const std::string target = folder.file("real.xml", "old");
    fs::permissions(target, fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    fs::create_symlink("real.xml", folder.path("link.xml"));
    writeTextFile(folder.path("link.xml"), "new");
    EXPECT_TRUE(fs::is_symlink(folder.path("link.xml")));
    EXPECT_EQ(contentOf(target), bytes("new"));
    EXPECT_EQ(fs::status(target).permissions(), fs::perms::owner_read | fs::perms::owner_write | fs::perms::group_read);
    EXPECT_EQ(folder.names(), (std::vector<std::string>{"link.xml", "real.xml"}));
}

TEST(ReplaceFile, FailsAtTheDeletionOfAReadOnlyFile)
{
    const TemporaryFolder folder;
    const std::string old = folder.file("a", "old");
    fs::permissions(old, fs::perms::owner_read);
    const auto failure = replaceFile(folder.file("~a", "new"), old);
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->step, ReplaceStep::Delete);
    EXPECT_EQ(failure->error.number, kPermissionDenied);
    EXPECT_EQ(contentOf(old), bytes("old"));

    const auto gone = replaceFile(folder.path("nothing"), folder.path("b"));
    ASSERT_TRUE(gone);
    EXPECT_EQ(gone->step, ReplaceStep::Rename);
}

TEST(ProgramFolder, IsTheFolderOfAPortableCopy)
{
    const std::string own = fs::path(executablePath()).parent_path().string() + "/";
    EXPECT_EQ(ProgramFolder().data, own);
    EXPECT_EQ(ProgramFolder().writable, own);
}

} // namespace ovisto::test
