// SPDX-License-Identifier: MIT

#include "collection/BatchAction.h"
#include "collection/DocumentLoad.h"
#include "common/system/File.h"
#include "document/TagDictionary.h"
#include "support/CountingProgress.h"
#include "support/JpegBytes.h"
#include "support/RecordingReporter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include <sys/resource.h>

namespace ovisto::test {

namespace fs = std::filesystem;

namespace {

const std::string kTitle = "/JPEG/Exif[@id='FFE1']/IFD[@id='9C9B']";

class BatchActionTest : public testing::Test {
protected:
    NodeChange titled(const std::string& title) { return {NodeAction::Set, m_dictionary.entry(kTitle), title}; }

    std::string titleOf(const std::string& path) { return loadDocument(path).selectSingleNode(kTitle).text(); }

    std::vector<std::string> photographs(int count)
    {
        std::vector<std::string> files;
        for (int i = 0; i < count; ++i)
            files.push_back(folder.file(std::to_string(100 + i) + ".jpg", JpegBytes().app0().end()));
        return files;
    }

    TemporaryFolder folder;
    RecordingReporter reporter;
    CountingProgress progress;

private:
    TagDictionary m_dictionary{OVISTO_DATA_FOLDER "Merovel.xml"};
};

} // namespace

TEST_F(BatchActionTest, DoesTheOthersWhenOneFailsHalfWay)
{
    std::vector<std::string> files = photographs(30);
    const Bytes before = contentOf(files[0]);
    const std::string unreadable = folder.file("text.jpg", "no photograph");
    const std::string readOnly = files[20];
    fs::permissions(readOnly, fs::perms::owner_read);
    const OutputFile otherSave(folder.path("~110.jpg")); // of a file of the list
    files.insert(files.begin() + 5, {folder.path("deleted.jpg"), unreadable});

    BatchAction(files, titled("New")).run(progress, reporter);
    EXPECT_EQ(progress.paths, files);
    std::vector<std::string> failed = {folder.path("deleted.jpg"), unreadable, folder.path("110.jpg"), readOnly};
    EXPECT_EQ(reporter.contexts, failed);
    for (const std::string& file : files) {
        if (std::ranges::find(failed, file) == failed.end()) {
            EXPECT_EQ(titleOf(file), "New") << file;
        }
    }
    EXPECT_EQ(contentOf(readOnly), before);
    EXPECT_FALSE(fs::exists(folder.path("~120.jpg"))) << "nothing is written for a file that cannot be replaced";
    EXPECT_EQ(contentOf(folder.path("110.jpg")), before);
}

TEST_F(BatchActionTest, PutsInPlaceWhatWasWrittenBeforeItWasStopped)
{
    const std::vector<std::string> files = photographs(12);
    CountingProgress stopping(10);
    BatchAction(files, titled("New")).run(stopping, reporter);
    EXPECT_EQ(titleOf(files[9]), "New");
    EXPECT_EQ(titleOf(files[10]), "");
    EXPECT_EQ(folder.names().size(), 12U) << "no temporary file is left";
}

TEST_F(BatchActionTest, ChangesAFileOnceThatIsInTheListTwice)
{
    std::vector<std::string> files = photographs(2);
    fs::create_symlink("100.jpg", folder.path("link.jpg"));
    files.insert(files.end(), {files[0], folder.path("./101.jpg")});
    files.insert(files.begin(), folder.path("link.jpg"));
    BatchAction(files, titled("New")).run(progress, reporter);
    EXPECT_TRUE(reporter.contexts.empty());
    EXPECT_EQ(titleOf(files[1]) + titleOf(files[2]), "NewNew");
    EXPECT_TRUE(fs::is_symlink(folder.path("link.jpg")));
}

TEST_F(BatchActionTest, WritesMoreThanAGroupAndNothingThatIsTheSame)
{
    const rlimit fewOpenFiles{.rlim_cur = 256, .rlim_max = 256};
    setrlimit(RLIMIT_NOFILE, &fewOpenFiles);
    const std::vector<std::string> files = photographs(300);
    const BatchAction batch(files, titled("New"));
    ASSERT_LT(batch.groupSize(), files.size());
    batch.run(progress, reporter);
    for (const std::string& file : {files.front(), files[batch.groupSize()], files.back()})
        EXPECT_EQ(titleOf(file), "New");
    const auto written = fs::last_write_time(files.front());
    batch.run(progress, reporter);
    EXPECT_EQ(fs::last_write_time(files.front()), written);
    EXPECT_TRUE(reporter.contexts.empty());
}

} // namespace ovisto::test
