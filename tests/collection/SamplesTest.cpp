// SPDX-License-Identifier: MIT

// Rewrites real photographs and lets another program say whether they still tell the same.

#include "support/CommandRun.h"
#include "support/JpegBytes.h"
#include "support/RecordingReporter.h"
#include "support/Rewriting.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <sstream>

namespace ovisto::test {

namespace fs = std::filesystem;

namespace {

std::string cameraSamples()
{
    const char* folder = std::getenv("OVISTO_SAMPLES");
    return folder != nullptr ? folder : OVISTO_DEFAULT_SAMPLES;
}

std::vector<fs::path> photographs(const std::string& folder)
{
    std::vector<fs::path> found;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        if (entry.path().extension() == ".jpg")
            found.push_back(entry.path());
    }
    std::ranges::sort(found);
    return found;
}

/// Copies of photographs that were rewritten.
struct Rewritten {
    TemporaryFolder folder;
    std::map<std::string, fs::path> originals; ///< by the path of the copy
};

/// Fields by file, as exiftool reads them in one run.
std::map<std::string, std::vector<std::string>> witness(const std::vector<std::string>& fields,
                                                        const std::vector<std::string>& files)
{
    std::string format = "$directory/$filename";
    for (const std::string& field : fields)
        format += "|${" + field + "}";
    std::vector<std::string> arguments = {"exiftool",          "-q", "-f",  "-n", "-m", "-api",
                                          "MissingTagValue=-", "-p", format};
    arguments.insert(arguments.end(), files.begin(), files.end());
    std::istringstream lines(runCommand(arguments).output);
    std::map<std::string, std::vector<std::string>> values;
    for (std::string line; std::getline(lines, line);) {
        std::istringstream pieces(line);
        std::string file, piece;
        std::getline(pieces, file, '|');
        while (std::getline(pieces, piece, '|'))
            values[file].push_back(piece);
    }
    return values;
}

/// Why a file is not expected to keep a field, or cannot be written at all.
struct Exception {
    const char* file;
    const char* field; // empty: the whole file
    const char* why;
};

constexpr Exception kExceptions[] = {
    {"Nikon_D70.jpg", "", "a negative exposure bias cannot be written"},
    {"Kodak_CX7530.jpg", "Make", "texts without a terminator lose their last character"},
    {"Kodak_CX7530.jpg", "Model", "texts without a terminator lose their last character"},
    {"Kodak_CX7530.jpg", "DateTimeOriginal", "texts without a terminator lose their last character"},
    {"kodak-dc210.jpg", "ThumbnailTIFF", "of a thumbnail in strips, the offset is overwritten by the length"},
};

const Exception* exceptionFor(const fs::path& file, const std::string& field)
{
    const auto* row = std::ranges::find_if(kExceptions, [&](const Exception& exception) {
        return file.filename() == exception.file && (exception.field == field || *exception.field == '\0');
    });
    return row != std::end(kExceptions) ? row : nullptr;
}

void rewriteAll(const std::string& folder, Rewritten& rewritten)
{
    int number = 0;
    for (const fs::path& original : photographs(folder)) {
        const std::string copy = rewritten.folder.file(std::to_string(number++) + ".jpg", contentOf(original));
        RecordingReporter reporter;
        const int error = errorNumberOf([&] { rewrite(copy, reporter); });
        if (const Exception* exception = exceptionFor(original, "")) {
            EXPECT_NE(error, 0) << original << ": " << exception->why;
            EXPECT_EQ(contentOf(copy), contentOf(original));
            continue;
        }
        EXPECT_EQ(error, 0) << original;
        EXPECT_EQ(imageData(contentOf(copy)), imageData(contentOf(original))) << original;
        rewritten.originals[copy] = original;
    }
}

void compareFields(const Rewritten& rewritten)
{
    const std::vector<std::string> fields = {"ifd0:Make",
                                             "ifd0:Model",
                                             "exififd:DateTimeOriginal",
                                             "exififd:ExposureTime",
                                             "exififd:FNumber",
                                             "exififd:ISO",
                                             "ThumbnailImage;$_=unpack('%32C*',$_)",
                                             "ThumbnailTIFF;$_=unpack('%32C*',$_)"};
    std::vector<std::string> copies, originals;
    for (const auto& [copy, original] : rewritten.originals) {
        copies.push_back(copy);
        originals.push_back(original);
    }
    auto after = witness(fields, copies);
    auto before = witness(fields, originals);
    for (const auto& [copy, original] : rewritten.originals) {
        ASSERT_EQ(before[original].size(), fields.size()) << original;
        ASSERT_EQ(after[copy].size(), fields.size()) << original;
        for (std::size_t i = 0; i < fields.size(); ++i) {
            const std::string field =
                fields[i].substr(fields[i].find(':') == std::string::npos ? 0 : fields[i].find(':') + 1);
            if (exceptionFor(original, field.substr(0, field.find(';'))) == nullptr) {
                EXPECT_EQ(after[copy][i], before[original][i]) << original << " " << field;
            }
        }
    }
}

class Samples : public testing::TestWithParam<std::string> {
protected:
    void SetUp() override
    {
        if (!fs::is_directory(GetParam()))
            GTEST_SKIP() << "The folder of photographs " << GetParam() << " is not here";
    }
};

} // namespace

TEST_P(Samples, KeepImageAndFieldsWhenRewritten)
{
    Rewritten rewritten;
    rewriteAll(GetParam(), rewritten);
    if (!isInstalled("exiftool"))
        GTEST_SKIP() << "exiftool (libimage-exiftool-perl) is not installed: the fields were not compared";
    compareFields(rewritten);
}

TEST_P(Samples, AreOnlyShortenedByASecondRewrite)
{
    // Byte arrays lose their last byte each time. Two Shorts are read from the entry but written outside of it, and the
    // offset of a thumbnail in strips is lost: files with one of them differ in more than length.
    for (const fs::path& original : photographs(GetParam())) {
        const TemporaryFolder folder;
        const std::string copy = folder.file("a.jpg", contentOf(original));
        RecordingReporter reporter;
        if (errorNumberOf([&] { rewrite(copy, reporter); }) != 0)
            continue;
        const XmlDocument once = loadDocument(copy);
        rewrite(copy, reporter);
        const XmlDocument twice = loadDocument(copy);
        const auto before = once.selectNodes("//IFD[@d!='1' and @d!='6' and @d!='4'] | //Exif1 | //MAKE | //APP1");
        const auto after = twice.selectNodes("//IFD[@d!='1' and @d!='6' and @d!='4'] | //Exif1 | //MAKE | //APP1");
        ASSERT_EQ(before.size(), after.size()) << original;
        for (std::size_t i = 0; i < before.size(); ++i)
            EXPECT_EQ(after[i].text(), before[i].text()) << original << " " << before[i].attribute("id");
    }
}

INSTANTIATE_TEST_SUITE_P(OfTheProject, Samples, testing::Values(OVISTO_OWN_SAMPLES));
INSTANTIATE_TEST_SUITE_P(OfCameras, Samples, testing::Values(cameraSamples()));

} // namespace ovisto::test
