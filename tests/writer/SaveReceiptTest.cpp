// SPDX-License-Identifier: MIT

#include "writer/SaveReceipt.h"
#include "collection/DocumentLoad.h"
#include "document/NodePaths.h"
#include "support/JpegBytes.h"
#include "support/RecordingReporter.h"
#include "writer/FilePatch.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace ovisto::test {

namespace {

/// A file, and its new version with another title.
struct Versions {
    explicit Versions(const Bytes& photograph)
        : oldPath(folder.file("old.jpg", photograph)), newPath(folder.path("new.jpg")), before(loadDocument(oldPath)),
          after(loadDocument(oldPath))
    {
        after.selectSingleNode(kTitlePath).setText("Another title");
        RecordingReporter reporter;
        OutputFile newFile(newPath);
        patchJpeg({WritingWay::Keep, before, after, {}}, InputFile(oldPath), newFile, reporter);
        newFile.sync();
    }

    SaveReceipt receipt() const
    {
        return compareVersions(InputFile(oldPath), InputFile(newPath), newPath, before, after,
                               documentReader(Reading::Basic));
    }

    TemporaryFolder folder;
    std::string oldPath;
    std::string newPath;
    XmlDocument before;
    XmlDocument after;
};

} // namespace

TEST(SaveReceipt, NoticesEveryWrongByte)
{
    for (const bool littleEndian : {true, false}) {
        const Versions versions(fullPhotograph(littleEndian));
        const SaveReceipt sound = versions.receipt();
        EXPECT_EQ(sound.losses, std::vector<Phrase>());
        EXPECT_EQ(sound.changed, 1U);
        EXPECT_EQ(sound.unchanged, 22U);
        const Bytes content = contentOf(versions.newPath);
        constexpr std::size_t kPadding = 24; // zeros that fill entries, and places that were left
        std::size_t unnoticed = 0;
        for (std::size_t i = 0; i < content.size(); ++i) {
            Bytes wrong = content;
            wrong[i] ^= 0x01;
            versions.folder.file("new.jpg", wrong);
            SaveReceipt receipt;
            ErrorTrap trap;
            trap.run([&] { receipt = versions.receipt(); });
            if (trap.pending() || !receipt.losses.empty())
                continue;
            EXPECT_EQ(content[i], 0) << "byte " << i;
            ++unnoticed;
        }
        EXPECT_LE(unnoticed, kPadding);
    }
}

} // namespace ovisto::test
