// SPDX-License-Identifier: MIT

#include "collection/Photograph.h"
#include "common/system/File.h"
#include "document/NodePath.h"
#include "support/Dictionary.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace ovisto {

namespace {

TEST(Photograph, IsSavedAgainAndAgainUnlessAnotherProgramChangesTheFile)
{
    const std::string path = testing::TempDir() + "Photograph.jpg";
    const auto restore = [&] {
        std::filesystem::copy_file(OVISTO_OWN_SAMPLES "big-endian.jpg", path,
                                   std::filesystem::copy_options::overwrite_existing);
    };
    restore();
    Photograph photograph(path, test::dictionary());
    EXPECT_EQ(photograph.inWords(kAnyOrientationPath), "upright (1)");
    for (const char* title : {"Hafen", "港"}) {
        EXPECT_TRUE(photograph.set(kTitlePath, title));
        EXPECT_FALSE(photograph.set(kTitlePath, title));
        EXPECT_EQ(photograph.save().changed, 1U);
        EXPECT_EQ(Photograph(path, test::dictionary()).value(kTitlePath), title);
    }
    EXPECT_TRUE(photograph.remove(kTitlePath));
    restore();
    try {
        photograph.save();
        ADD_FAILURE() << "saved over what another program wrote";
    } catch (const Error& error) {
        EXPECT_TRUE(inEnglish(error.description).starts_with(path + ": ")) << inEnglish(error.description);
    }
}

TEST(Photograph, RefusesWhatNoPhotographCanHave)
{
    Photograph photograph(OVISTO_OWN_SAMPLES "big-endian.jpg", test::dictionary());
    const std::string before = photograph.document().xml();
    for (const char* path :
         {"/JPEG/SOS[1]", "//IFD", "", kExifPath, "/JPEG/SOS", "/JPEG/Exif[@id='FFE1']/IFD[@id='ABCD']"}) {
        try {
            photograph.set(path, "1");
            ADD_FAILURE() << path;
        } catch (const Error& error) {
            EXPECT_EQ(error.number, kInvalidCall) << path;
        }
    }
    EXPECT_EQ(photograph.document().xml(), before);
}

} // namespace

} // namespace ovisto
