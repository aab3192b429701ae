// SPDX-License-Identifier: MIT

// What fuzzing is run with and what it found, without fuzzing: see fuzz/run.sh.

#include "Seeds.h"
#include "Targets.h"
#include "support/JpegBytes.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace ovisto::test {

namespace fs = std::filesystem;

TEST(Fuzzing, FindsNothingInItsSeedsAndInWhatItFoundBefore)
{
    const TemporaryFolder folder;
    fuzz::writeSeeds(folder.path("seeds"));
    const struct {
        const char* name;
        std::string (*run)(std::span<const std::uint8_t>);
    } targets[] = {
        {"read", fuzz::read}, {"rebuild", fuzz::rebuild}, {"keep", fuzz::keep}, {"readText", fuzz::readText}};
    for (const auto& target : targets) {
        for (const fs::path& inputs : {fs::path(folder.path("seeds")), fs::path(OVISTO_FUZZ_INPUTS)}) {
            if (!fs::is_directory(inputs / target.name))
                continue;
            for (const auto& input : fs::directory_iterator(inputs / target.name))
                EXPECT_EQ(target.run(contentOf(input.path())), "") << input.path();
        }
    }
}

} // namespace ovisto::test
