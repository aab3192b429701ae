// SPDX-License-Identifier: MIT

#include "collection/PrivateData.h"

#include "collection/DocumentLoad.h"
#include "collection/ThumbnailJudgement.h"
#include "common/text/Hex.h"
#include "jpeg/ScanData.h"
#include "support/CommandRun.h"
#include "support/Dictionary.h"
#include "support/JpegBytes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>

namespace ovisto::test {

namespace {

const std::u16string kName = u"Zoë Nägeli";
const std::string kNarrowName = "Zo\xC3\xAB N\xC3\xA4geli";
const std::string kPlace = "54.536250";

Bytes wide(const ExifBytes& exif, const std::u16string& text)
{
    Bytes units;
    for (const char16_t unit : text)
        units = units + exif.number(unit, 2);
    return units;
}

Bytes position(const ExifBytes& exif)
{
    return exif.rationals(2, {54, 1, 32, 1, 1050, 100}).value;
}

std::u16string wideText(const std::string& ascii)
{
    return {ascii.begin(), ascii.end()};
}

/// Name and place in every form: what must not be in a file that was cleaned.
std::vector<Bytes> allForms()
{
    std::vector<Bytes> forms = {bytes(kNarrowName), bytes("Zo\xEB N\xE4geli"), bytes(kPlace)};
    for (const bool littleEndian : {false, true}) {
        const ExifBytes exif(littleEndian);
        forms.push_back(wide(exif, kName));
        forms.push_back(wide(exif, wideText(kPlace)));
        forms.push_back(position(exif));
    }
    return forms;
}

/// How often any of them occurs.
std::size_t count(const Bytes& content)
{
    std::size_t found = 0;
    for (const Bytes& form : allForms()) {
        for (auto place = content.begin();
             (place = std::search(place, content.end(), form.begin(), form.end())) != content.end(); ++place)
            ++found;
    }
    return found;
}

Bytes everything()
{
    Bytes all = bytes("|");
    for (const Bytes& form : allForms())
        all = all + form + bytes("|");
    return all;
}

Bytes zero(const char* identifier)
{
    return bytes(identifier) + Bytes{0};
}

/// Tells name and place wherever a file can.
Bytes tellingPhotograph(bool littleEndian)
{
    ExifBytes exif(littleEndian);
    const auto all = [](std::uint16_t tag, std::uint16_t type) { return ExifBytes::raw(tag, type, everything()); };
    exif.ifd0({all(0x010D, 2), all(0x010E, 2), exif.ascii(0x0110, "M1"), exif.shorts(0x0112, {6}), all(0x013B, 2),
               all(0x013C, 2), all(0x02BC, 1), all(0x8298, 2), all(0x83BB, 7), all(0x8649, 1),
               ExifBytes::raw(0x9C9B, 1, wide(exif, kName)), ExifBytes::raw(0x9C9D, 1, wide(exif, kName)),
               all(0xC62F, 2), all(0xEA1C, 7), all(0xF123, 7), all(0xFDE8, 2), all(0xFDE9, 2)})
        .exif({exif.rationals(0x829A, {1, 250}), ExifBytes::raw(0x9286, 7, zero("UNICODE") + wide(exif, kName)),
               all(0xA420, 2), all(0xA430, 2), all(0xA431, 2), all(0xA435, 2), all(0xA437, 129)})
        .gps({{2, 5, 3, position(exif)}, all(0x1B, 7)})
        .makerNote(everything())
        .ifd1({exif.ascii(0x013B, kNarrowName)})
        .thumbnail(everything());
    const Bytes leftover = exif.payload() + everything();
    ExifBytes second(!littleEndian);
    second.ifd0({all(0x013B, 2)});
    return JpegBytes()
               .segment(0xFFE0, zero("JFIF") + Bytes{1, 1, 0, 0, 1, 0, 1, 9, 9} + everything())
               .segment(0xFFE0, zero("JFXX") + everything())
               .segment(0xFFE0, everything())
               .segment(0xFFE1, leftover)
               .exif(second)
               .segment(0xFFE1, zero("http://ns.adobe.com/xap/1.0/") + everything())
               .segment(0xFFE1, zero("http://ns.adobe.com/xmp/extension/") + everything())
               .segment(0xFFE1, zero("other") + everything())
               .segment(0xFFE2, zero("ICC_PROFILE") + Bytes{1, 1, 7, 7})
               .segment(0xFFE2, zero("MPF") + everything())
               .segment(0xFFEC, zero("Ducky") + everything())
               .segment(0xFFED, zero("Photoshop 3.0") + everything())
               .segment(0xFFEE, bytes("Adobe") + Bytes{0, 100, 0, 0, 0, 0, 1})
               .segment(0xFFFE, everything())
               .end() +
           everything();
}

/// The segments that a picture needs, and the picture.
Bytes bareFrame(const Bytes& content)
{
    const Bytes name = bytes("Adobe");
    const auto adobe = std::search(content.begin(), content.end(), name.begin(), name.end());
    return {adobe, content.end()};
}

CommandRun ovisto(std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), OVISTO_CLI);
    return runCommand(arguments);
}

std::vector<std::string> kindsIn(const std::string& path)
{
    XmlDocument document = loadDocument(path, {.reading = Reading::Full});
    std::vector<std::string> kinds;
    for (const PrivateFinding& finding : privateFindings(document, path, dictionary()))
        kinds.emplace_back(privateKindRow(finding.kind).name);
    std::ranges::sort(kinds);
    return kinds;
}

std::string asText(const std::vector<std::string>& words)
{
    std::string text;
    for (const std::string& word : words)
        text += word + " ";
    return text;
}

/// A picture with something in each of its corners, as an artist of few words would paint it.
GreyPicture painting(std::size_t width, std::size_t height)
{
    GreyPicture picture{width, height, std::vector<std::uint8_t>(width * height)};
    for (std::size_t y = 0; y < height; ++y) {
        for (std::size_t x = 0; x < width; ++x) {
            const double across = static_cast<double>(x) / static_cast<double>(width);
            const double down = static_cast<double>(y) / static_cast<double>(height);
            const bool isSun = std::hypot(across - 0.75, down - 0.25) < 0.12;
            picture.pixels[y * width + x] =
                static_cast<std::uint8_t>(isSun ? 230 : 60 + 80 * across + 50 * std::sin(9 * down));
        }
    }
    return picture;
}

template <class Paint> GreyPicture painted(GreyPicture picture, Paint paint)
{
    for (std::size_t y = 0; y < picture.height; ++y) {
        for (std::size_t x = 0; x < picture.width; ++x)
            paint(picture.pixels[y * picture.width + x], x, y);
    }
    return picture;
}

} // namespace

TEST(PrivateData, NothingThatWasCleanedIsLeftInTheFile)
{
    const TemporaryFolder folder;
    for (const bool littleEndian : {true, false}) {
        const Bytes before = tellingPhotograph(littleEndian);
        ASSERT_GT(count(before), 200U);
        const std::string path = folder.file("a.jpg", before);
        const CommandRun run = ovisto({"clean", path});
        EXPECT_EQ(run.status, 0) << run.errors;
        const Bytes after = contentOf(path);
        EXPECT_EQ(count(after), 0U) << hexNumber(static_cast<std::uint32_t>(count(after)));
        const Bytes end = bytes("Adobe") + Bytes{0, 100, 0, 0, 0, 0, 1};
        const Bytes picture = JpegBytes().end();
        EXPECT_EQ(bareFrame(after), end + Bytes(picture.begin() + 2, picture.end()));
        const XmlDocument document = loadDocument(path, {.reading = Reading::Full});
        EXPECT_EQ(document.selectSingleNode("/JPEG/APP0").text(), "4A46494600010100000100010000");
        EXPECT_EQ(document.selectNodes("/JPEG/*").size(), 6U) << document.xml();
        EXPECT_EQ(document.selectSingleNode("/JPEG/Exif/IFD[@id='0110']").text(), "M1");
        EXPECT_EQ(document.selectSingleNode("/JPEG/Exif/IFD[@id='0112']").text(), "6");
        EXPECT_EQ(document.selectSingleNode("/JPEG/Exif/IFDE/IFD[@id='829A']").text(), "1/250");
        EXPECT_EQ(ovisto({"show", "--private", path}).output,
                  path + "\n  Nothing was found that identifies a person or a place\n");
        const auto written = std::filesystem::last_write_time(path);
        EXPECT_EQ(ovisto({"clean", path}).status, 0);
        EXPECT_EQ(std::filesystem::last_write_time(path), written) << "there was nothing to take away";
    }
}

TEST(PrivateData, KeepsTheKindsThatAreNamed)
{
    const TemporaryFolder folder;
    const std::string original = folder.file("a.jpg", tellingPhotograph(true));
    const std::vector<std::string> all = kindsIn(original);
    for (const PrivateKindRow& row : kPrivateKinds) {
        const std::string path = folder.file("b.jpg", tellingPhotograph(true));
        EXPECT_EQ(ovisto({"clean", "--keep", row.name, path}).status, 0);
        const std::vector<std::string> kept = kindsIn(path);
        std::vector<std::string> expected(static_cast<std::size_t>(std::ranges::count(all, row.name)), row.name);
        if (row.kind == PrivateKind::Names)
            expected.pop_back(); // the one in the directory of the thumbnail goes with it
        EXPECT_FALSE(expected.empty()) << row.name;
        EXPECT_EQ(asText(kept), asText(expected)) << row.name;
    }
    const std::string path = folder.file("b.jpg", tellingPhotograph(true));
    EXPECT_EQ(ovisto({"clean", "--keep", "copyright,trailer", path}).status, 0);
    EXPECT_EQ(asText(kindsIn(path)), "copyright trailer trailer ");
    EXPECT_EQ(ovisto({"clean", "--keep", "copyrigth", path}).status, 2);
}

TEST(PrivateData, SaysWhatStaysAndFails)
{
    const TemporaryFolder folder;
    ExifBytes exif;
    exif.ifd0({exif.ascii(0x013B, "Zoe the photographer")});
    const Bytes noted = {0x11, 0xFF, 0xFE, 0, 5, 'Z', 'o', 'e', 0x22};
    const std::string path = folder.file("a.jpg", JpegBytes().exif(exif).end(noted));
    const TemporaryFolder lists;
    const CommandRun run = ovisto({"clean", "--failed-to", lists.path("undone"), path});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(contentOf(lists.path("undone")), bytes(path + "\n"));
    EXPECT_NE(run.errors.find("FFFE , 7 bytes, inside the image data"), std::string::npos) << run.errors;
    EXPECT_EQ(asText(kindsIn(path)), "comments ");
    Bytes cut = JpegBytes().exif(exif).end();
    cut.resize(cut.size() - 2);
    const std::string endless = folder.file("b.jpg", cut);
    EXPECT_EQ(ovisto({"clean", endless}).status, 1);
    EXPECT_EQ(asText(kindsIn(endless)), "trailer ");
    EXPECT_EQ(ovisto({"clean", "--keep", "trailer", endless}).status, 0);
}

TEST(ScanData, EndsWithTheMarkerOfTheMainImage)
{
    const struct {
        const char* name;
        Bytes data;
        int end; ///< 0: none
        std::size_t notes = 0;
    } cases[] = {
        {"nothing", {}, 0},
        {"at once", {0xFF, 0xD9}, 2},
        {"data like markers", {0xFF, 0x00, 0xD9, 0xFF, 0xD7, 0xFF, 0xFF, 0xD9, 0xFF, 0xD9}, 8},
        {"a second scan", {1, 0xFF, 0xC4, 0, 4, 0xFF, 0xD9, 0xFF, 0xDA, 0, 3, 9, 2, 0xFF, 0xD9}, 15},
        {"a comment and its like between scans",
         {1, 0xFF, 0xFE, 0, 4, 0xFF, 0xD9, 0xFF, 0xE4, 0, 2, 0xFF, 0xD9},
         13,
         2},
        {"another picture begins before the end", {1, 0xFF, 0xD8, 0xFF, 0xD9}, 0},
        {"an impossible length", {1, 0xFF, 0xFE, 0, 1, 0xFF, 0xD9}, 0},
        {"a segment past the end", {1, 0xFF, 0xFE, 9, 9, 0xFF, 0xD9}, 0, 1},
        {"no segment", {1, 0xFF, 0x02, 0, 2, 0xFF, 0xD9}, 0},
        {"a long one", Bytes(40000, 0xFF) + Bytes{0xD9}, 40001},
    };
    const TemporaryFolder folder;
    for (const auto& c : cases) {
        const InputFile file(folder.file("a", bytes("xx") + c.data));
        const ScanData data = scanData(file, {3});
        EXPECT_EQ(data.end.value_or(2) - 2, c.end) << c.name;
        EXPECT_EQ(data.notes.size(), c.notes) << c.name;
    }
}

TEST(Thumbnail, ShowsThePictureOrSomethingElse)
{
    const GreyPicture picture = painting(300, 200);
    const GreyPicture small = painting(120, 80);
    const auto turned = painted(painting(80, 120), [&](std::uint8_t& grey, std::size_t x, std::size_t y) {
        grey = small.pixels[(79 - x) * 120 + y];
    });
    const auto bars = painted(painting(120, 90), [&](std::uint8_t& grey, std::size_t x, std::size_t y) {
        grey = y >= 5 && y < 85 ? small.pixels[(y - 5) * 120 + x] : 3;
    });
    const auto lighter = painted(
        small, [](std::uint8_t& grey, std::size_t, std::size_t) { grey = static_cast<std::uint8_t>(grey / 2 + 110); });
    const auto face = painted(picture, [](std::uint8_t& grey, std::size_t x, std::size_t y) {
        grey = x > 100 && x < 120 && y > 120 && y < 140 ? 0 : grey;
    });
    const auto part = painted(picture, [&](std::uint8_t& grey, std::size_t x, std::size_t y) {
        grey = picture.pixels[(y * 4 / 5) * 300 + x * 4 / 5];
    });
    const auto flat = painted(small, [](std::uint8_t& grey, std::size_t, std::size_t) { grey = 128; });
    using enum ThumbnailShows;
    const struct {
        const char* name;
        std::optional<GreyPicture> picture;
        std::optional<GreyPicture> thumbnail;
        ThumbnailShows shows;
    } cases[] = {{"the same", picture, small, Picture},
                 {"turned", picture, turned, Picture},
                 {"with bars", picture, bars, Picture},
                 {"lighter", picture, lighter, Picture},
                 {"other proportions", picture, painting(120, 90), OtherProportions},
                 {"painted over", face, small, OtherContent},
                 {"cut out", part, small, OtherContent},
                 {"one colour", picture, flat, OtherContent},
                 {"both of one colour", flat, flat, Picture},
                 {"no thumbnail", picture, std::nullopt, NotJudged},
                 {"no picture", std::nullopt, small, NotJudged}};
    for (const auto& c : cases)
        EXPECT_EQ(judgeThumbnail(c.picture, c.thumbnail), c.shows) << c.name;
}

TEST(Thumbnail, OfTheProjectsSamplesIsThePictureUnlessItIsExchanged)
{
    const auto decoded = [](const Bytes& content) {
        const auto read = [&content](std::int64_t offset, std::span<std::uint8_t> into) {
            const auto start = std::min(static_cast<std::size_t>(offset), content.size());
            const std::size_t size = std::min(into.size(), content.size() - start);
            std::copy_n(content.begin() + static_cast<std::ptrdiff_t>(start), size, into.begin());
            return size;
        };
        return greyPicture({read, static_cast<std::int64_t>(content.size())});
    };
    const auto thumbnailOf = [](const std::string& path) {
        return hexRunBytes(loadDocument(path).selectSingleNode("//THUM").text());
    };
    const std::string lake = OVISTO_OWN_SAMPLES "little-endian.jpg";
    Bytes content = contentOf(lake);
    const auto picture = decoded(content);
    ASSERT_TRUE(picture);
    EXPECT_EQ(judgeThumbnail(picture, decoded(thumbnailOf(lake))), ThumbnailShows::Picture);
    EXPECT_NE(judgeThumbnail(picture, decoded(thumbnailOf(OVISTO_OWN_SAMPLES "big-endian.jpg"))),
              ThumbnailShows::Picture);
    const Bytes start = {0xFF, 0xC0, 0, 17, 8};
    const auto frame = std::find_end(content.begin(), content.end(), start.begin(), start.end()); // not the thumbnail's
    ASSERT_NE(frame, content.end());
    Bytes large = content;
    std::fill_n(large.begin() + (frame - content.begin()) + 5, 4, std::uint8_t{0xFF}); // 65,535 x 65,535
    EXPECT_FALSE(decoded(large));
    for (const std::size_t size : {content.size() * 9 / 10, content.size() / 2, std::size_t{300}, std::size_t{2}})
        EXPECT_FALSE(decoded(Bytes(content.begin(), content.begin() + static_cast<std::ptrdiff_t>(size)))) << size;
}

} // namespace ovisto::test
