// SPDX-License-Identifier: MIT

#include "collection/FolderScan.h"
#include "common/text/Unicode.h"
#include "support/CountingProgress.h"
#include "support/Dictionary.h"
#include "support/JpegBytes.h"
#include "support/RecordingReporter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

namespace ovisto::test {

namespace fs = std::filesystem;

namespace {

/// A folder with photographs in it and below it.
class ScanFolder : public TemporaryFolder {
public:
    explicit ScanFolder(const std::vector<std::string>& names)
    {
        for (const std::string& name : names) {
            fs::create_directories(fs::path(path(name)).parent_path());
            file(name, fullPhotograph(true));
        }
    }
};

/// Deletes a folder at the first file.
class Deleting : public CountingProgress {
public:
    explicit Deleting(std::string folder) : m_folder(std::move(folder)) {}

    bool step(const std::string& path, std::size_t done, std::size_t total) override
    {
        fs::remove_all(m_folder);
        return CountingProgress::step(path, done, total);
    }

private:
    std::string m_folder;
};

struct Found {
    std::vector<std::string> files;
    RecordingReporter reporter;
    CountingProgress progress;

    explicit Found(std::size_t steps = 1'000'000) : progress(steps) {}

    /// The paths without that of `folder`, joined by blanks.
    std::string scan(const TemporaryFolder& folder, ScanOptions options = {})
    {
        options.folder = folder.path("");
        FolderScan(options).run(files, progress, reporter);
        std::string names;
        for (const std::string& file : files)
            names += (names.empty() ? "" : " ") + file.substr(options.folder.size());
        return names;
    }
};

ScanOptions withContent(const ContentSearch& content)
{
    ScanOptions options;
    options.content = content;
    return options;
}

} // namespace

TEST(FilePattern, ReadsWildcardsInAnyLetterCase)
{
    const struct {
        const char* patterns;
        const char* name;
        bool matches;
    } cases[] = {
        {"*.jpg;*.jpeg", "A.JPG", true},
        {"*.jpg;*.jpeg", "a.Jpeg", true},
        {"*.jpg;*.jpeg", "a.jpg.bak", false},
        {"*.jpg", ".jpg", true},
        {"*.jpg", "jpg", false},
        {"a?c*e", "abcdcde", true},
        {"a?c", "ac", false},
        {"?.jpg", "ä.jpg", true},
        {"GRÜN*", "grün 1", true},
        {"ΟΔΟΣ?", "οδος1", true},
        {"caf\u00E9?",
         "CAFE\u0301"
         "1",
         true}, // one letter
        {"*a*b*a*", "xxabxbx", false},
        {"**", "", true},
        {"", "a.jpg", false},
        {" *.png ; *.jpg", "a.jpg", true},
    };
    for (const auto& c : cases)
        EXPECT_EQ(FilePattern(c.patterns).matches(c.name), c.matches) << c.patterns << " " << c.name;
    const std::string manyStars = "*a*a*a*a*a*a*a*a*a*a*a*a*b";
    EXPECT_FALSE(FilePattern(manyStars).matches(std::string(250, 'a'))) << "and at once";
}

TEST(FolderScan, ListsFilesByNameAndThenTheSubFolders)
{
    const ScanFolder folder({"b.jpg", "A.JPG", "c.png", ".hidden.jpg", "sub/x.jpg", "sub/Zwei/é 1.jpeg", ".trash/d.jpg",
                             "name.jpg/inner.jpg"});
    Found all;
    EXPECT_EQ(all.scan(folder), "A.JPG b.jpg name.jpg/inner.jpg sub/x.jpg sub/Zwei/é 1.jpeg");
    EXPECT_EQ(all.progress.places, (std::vector<std::string>{"0/2", "1/2", "0/1", "0/1", "0/1"}));
    ScanOptions flat;
    flat.subFolders = false;
    flat.patterns = "?.*";
    EXPECT_EQ(Found().scan(folder, flat), "A.JPG b.jpg c.png");
}

TEST(FolderScan, AppendsWithoutLookingForRepeats)
{
    const ScanFolder folder({"a.jpg"});
    Found found;
    found.scan(folder);
    ScanOptions append;
    append.append = true;
    EXPECT_EQ(found.scan(folder, append), "a.jpg a.jpg");
    EXPECT_EQ(found.scan(folder), "a.jpg");
}

TEST(FolderScan, KeepsTheListWhenTheFolderIsGone)
{
    const TemporaryFolder folder;
    ScanOptions options;
    options.folder = folder.path("gone");
    ErrorTrap trap;
    trap.run([&] { FolderScan scan(options); });
    ASSERT_TRUE(trap.pending());
    EXPECT_EQ(inEnglish(trap.error().description), "Folder not found");
}

TEST(FolderScan, KeepsWhatWasFoundWhenItIsStopped)
{
    const ScanFolder folder({"a.jpg", "b.jpg", "c.jpg", "sub/d.jpg"});
    Found found(2);
    EXPECT_EQ(found.scan(folder), "a.jpg b.jpg");
    EXPECT_EQ(found.progress.paths.size(), 3U) << "and no folder is looked into afterwards";
}

TEST(FolderScan, EndsLinksInACircle)
{
    const ScanFolder folder({"one/a.jpg", "two/b.jpg"});
    fs::create_directory_symlink("..", folder.path("one/up"));
    fs::create_directory_symlink("../two", folder.path("one/other"));
    fs::create_directory_symlink("../one", folder.path("two/other"));
    fs::create_symlink("nowhere", folder.path("dangling.jpg"));
    fs::create_symlink("one/a.jpg", folder.path("link.jpg"));
    EXPECT_EQ(Found().scan(folder), "link.jpg one/a.jpg one/other/b.jpg");
}

TEST(FolderScan, PassesOverWhatOnlyShowsTheSystem)
{
    const ScanFolder folder({"a.jpg"});
    fs::create_directory_symlink("/proc/sys/kernel", folder.path("processes"));
    fs::create_directory_symlink("/sys/kernel", folder.path("settings"));
    ScanOptions options;
    options.patterns = "*";
    EXPECT_EQ(Found().scan(folder, options), "a.jpg");
    options.folder = "/proc/sys/kernel";
    Found chosen;
    FolderScan(options).run(chosen.files, chosen.progress, chosen.reporter);
    EXPECT_EQ(std::ranges::count(chosen.files, "/proc/sys/kernel/random/uuid"), 1);
}

TEST(FolderScan, ReportsASubFolderThatCannotBeReadAndGoesOn)
{
    const ScanFolder folder({"a.jpg", "gone/b.jpg", "open/c.jpg"});
    Deleting progress(folder.path("gone"));
    RecordingReporter reporter;
    std::vector<std::string> found;
    ScanOptions options;
    options.folder = folder.path("");
    FolderScan(options).run(found, progress, reporter);
    EXPECT_EQ(found, (std::vector<std::string>{folder.path("a.jpg"), folder.path("open/c.jpg")}));
    EXPECT_EQ(reporter.contexts, std::vector<std::string>{folder.path("gone")});
}

TEST(ContentFilter, ReadsWordsAndExpressionsAsPeopleTypeThem)
{
    const TemporaryFolder folder;
    const std::string path = folder.file("a.jpg", fullPhotograph(true)); // Acme, Héllo
    const struct {
        ContentSearch search;
        bool keeps;
    } cases[] = {
        {{"acme"}, true},
        {{"xyzzy"}, false},
        {{"xyzzy, ACME "}, true},
        {{"xyzzy,"}, true}, // an empty word behind another one: every file
        {{",xyzzy"}, false},
        {{" "}, true},
        {{"IFDE"}, true}, // markup counts
        {{"acme,llo", true}, true},
        {{"acme,xyzzy", true}, false},
        {{"acme,", true}, true},
        {{"cme", false, true}, false},
        {{"Acme", false, true}, true},
        {{"a.me|xyzzy"}, true}, // their characters keep their meaning in words
        {{"^<IFD id=\"010F\".*>Acme</IFD>$", false, true, true}, true},
        {{"acme,", false, false, true}, false},
        {{"Acme.*Exif1", false, false, true}, false}, // a dot is no line break
        {{"[^]*</JPEG>$", false, false, true}, true},
        {{"[]", false, false, true}, false},
        {{"[[]JPEG|<JPEG[[a-z]* ", false, false, true}, true},
        {{"\\QAcme\\E", false, false, true}, false}, // in ECMAScript the letters Q and E
        {{"\\u0041cme", false, false, true}, true},
        {{"(A)cme|\\1never", false, false, true}, true},
    };
    for (const auto& c : cases) {
        ContentSearch search = c.search;
        EXPECT_EQ(ContentFilter(search).keeps(path), c.keeps) << c.search.words;
        search.reading = Reading::Basic;
        EXPECT_EQ(ContentFilter(search).keeps(path), c.keeps) << c.search.words << " in a basic document";
    }
    for (const Reading reading : {Reading::Full, Reading::Basic}) {
        ContentSearch meant{.words = "1/250 S", .reading = reading};
        EXPECT_FALSE(ContentFilter(meant).keeps(path));
        meant.values.dictionary = &dictionary();
        EXPECT_TRUE(ContentFilter(meant).keeps(path));
        meant.words = "acme";
        EXPECT_TRUE(ContentFilter(meant).keeps(path));
        const Bytes illFormed = JpegBytes().segment(0xFFE1, bytes("x") + Bytes{0} + bytes("<acme ]]>")).end();
        EXPECT_TRUE(ContentFilter(meant).keeps(folder.file("ill-formed.jpg", illFormed)));
    }
    EXPECT_FALSE(ContentFilter({"JPEG"}).keeps(folder.file("broken.jpg", "text")));
    EXPECT_TRUE(ContentFilter({}).keeps(folder.path("none.jpg"))) << "not even opened";
}

TEST(ContentFilter, FindsInFullDocumentsWhatPeopleSee)
{
    const TemporaryFolder folder;
    ExifBytes exif;
    exif.ifd0({ExifBytes::raw(0x9C9B, 1, bytes(utf16Bytes("Żółw na Straße, ΟΔΟΣ, 富士山の写真 😀"))),
               exif.ascii(0x010E, "Marks & Co <\"x\"> it's \x93"
                                  "caf\xE9\x94\nnext"),
               exif.ascii(0x013B, "Jose\u0301")});
    const std::string payload = "<dc>A &amp; B&#x3A9;]]>\r\nend</dc>";
    const std::string path =
        folder.file("a.jpg", JpegBytes()
                                 .exif(exif)
                                 .segment(0xFFE1, bytes("http://ns.adobe.com/xap/1.0/") + Bytes{0} + bytes(payload))
                                 .end());
    const struct {
        ContentSearch search;
        bool keeps;
    } cases[] = {
        {{"żÓŁW"}, true},
        {{"zolw"}, false},
        {{"STRASSE"}, true},
        {{"strasse", false, true}, true},
        {{"οδος"}, true},
        {{"οδοσ, ŻÓŁW, 写真, 富士山", true, true}, true}, // whole words
        {{"δος", false, true}, false},
        {{"😀", false, true}, true},
        {{"marks & co <\"X\"> IT'S “CAFÉ”"}, true},
        {{"&(amp|lt|quot|apos|#10);"}, false},
        {{"A & BΩ"}, true}, // in the XML of a segment too
        {{"JOS\u00C9"}, true},
        {{"jose\u0301", false, true}, true},
        {{"jose", false, true}, false},
        {{"stra\u00DF{2}e"}, false},
        {{"x\u00DF?y|Stra(\u00DF)+e"}, true},
        {{"[e\u0301]”"}, true},
        {{"^next", false, false, true}, true},
        {{"CO <\"x\".*“CAFÉ”", false, false, true}, true},
        {{"\\bcaf\\b", false, false, true}, true}, // of an expression the letters are ASCII
        {{"^\\W+ółw", false, false, true}, false},
        {{"STRASSE|jos\u00E9", false, false, true}, false}, // and it is exact but for the case of single letters
        {{"Ω\\]\\]>\\r\\nend", false, false, true}, true},
    };
    for (const auto& c : cases)
        EXPECT_EQ(ContentFilter(c.search).keeps(path), c.keeps) << c.search.words << c.search.wholeWords;
}

TEST(ContentFilter, FindsWordsBeyondAsciiInEveryFormThatABasicDocumentHasThemIn)
{
    const TemporaryFolder folder;
    ExifBytes exif;
    exif.ifd0(
        {exif.ascii(0x010E, "caf\xE9 \xABpr\xE9\xE9tude\xBB \x8Cuvre \x80 10"), exif.ascii(0x013B, "Chlo\xC3\xA9")});
    const std::string path =
        folder.file("Straße.jpg", JpegBytes()
                                      .exif(exif)
                                      .segment(0xFFE1, bytes("http://ns.adobe.com/xap/1.0/") + Bytes{0} +
                                                           bytes("<dc>Zürich Ωmega</dc>"))
                                      .end());
    const struct {
        ContentSearch search;
        bool keeps;
    } cases[] = {
        {{"café"}, true},
        {{"CAFÉ"}, true},
        {{"cafè"}, false},
        {{"œuvre"}, true},
        {{"€ 10"}, true},
        {{"H&#233;LLO|CAF&#233;"}, true}, // as it stands in the document
        {{"chloé, none", true}, false},
        {{"chloé, zürich, ωmega", true}, false}, // of other letters the case counts
        {{"chloé, zürich, Ωmega, straße", true}, true},
        {{"café", false, true}, true},
        {{"œuvre", false, true}, true},
        {{"prééétude, prééétud", false, true}, false},
        {{"préétude", false, true}, true},
        {{"étude", false, true}, false},
        {{"pré", false, true}, false},
        {{"é{2}tude"}, true},
        {{"[é]"}, false},
        {{"café", false, false, true}, false},
        {{"caf(é|&#233;)", false, false, true}, true},
    };
    for (const auto& c : cases) {
        ContentSearch search = c.search;
        search.reading = Reading::Basic;
        EXPECT_EQ(ContentFilter(search).keeps(path), c.keeps) << c.search.words << c.search.wholeWords;
    }
    ErrorTrap trap;
    trap.run([] { ContentFilter({"café("}); });
    ASSERT_TRUE(trap.pending());
    EXPECT_EQ(inEnglish(trap.error().description).find("The words \"café(\" "), 0U) << "as they were typed";
}

TEST(FolderScan, FiltersByContentAndDropsWhatTheReaderCannotRead)
{
    const ScanFolder folder({"a.jpg", "sub/b.jpg"});
    folder.file("broken.jpg", "no photograph");
    folder.file("plain.jpg", JpegBytes().app0().end());
    EXPECT_EQ(Found().scan(folder), "a.jpg broken.jpg plain.jpg sub/b.jpg");
    Found filtered;
    EXPECT_EQ(filtered.scan(folder, withContent({"acme"})), "a.jpg sub/b.jpg");
    EXPECT_TRUE(filtered.reporter.contexts.empty());
}

TEST(FolderScan, ReportsABrokenPatternOnce)
{
    const ScanFolder folder({"a.jpg", "b.jpg"});
    for (const char* pattern : {"(", "a**", "(*FAIL)", "(*LIMIT_MATCH=1)a", "[b-a]"}) {
        Found found;
        EXPECT_EQ(found.scan(folder, withContent({pattern, false, false, true})), "") << pattern;
        EXPECT_EQ(found.reporter.contexts, std::vector<std::string>{"Checking file contents"}) << pattern;
    }
}

TEST(FolderScan, EndsRunawayExpressionsWithOneReport)
{
    const TemporaryFolder folder;
    ExifBytes exif;
    exif.ifd0({exif.ascii(0x010E, std::string(200, 'a'))});
    for (const char* name : {"a.jpg", "b.jpg"})
        folder.file(name, JpegBytes().exif(exif).end());
    folder.file("c.jpg", JpegBytes().app0().end());
    // A document has the name of its file, so the expressions ask for what the name of no folder has.
    Found found;
    EXPECT_EQ(found.scan(folder, withContent({"(a+)+~|APP0", false, false, true})), "c.jpg");
    EXPECT_EQ(found.reporter.numbers, std::vector<int>{kOutOfMemory});
    EXPECT_EQ(found.reporter.reasons.at(0).find("2 files could not be checked. The first: " + folder.path("a.jpg")), 0U)
        << "at the end";
    // One that goes back and forth over a long text does little at each step.
    folder.file("b.jpg", JpegBytes().segment(0xFFE2, Bytes(65000, 0x11)).end());
    Found second;
    EXPECT_EQ(second.scan(folder, withContent({"1.*1.*~|@@", false, false, true})), "");
    EXPECT_EQ(second.reporter.numbers, std::vector<int>{kOutOfMemory});
    // On many files the scan gives up.
    for (int i = 0; i < 20; ++i)
        fs::create_symlink("a.jpg", folder.path("b" + std::to_string(i) + ".jpg"));
    Found third;
    EXPECT_EQ(third.scan(folder, withContent({"(a+)+~|APP0", false, false, true})), "");
    EXPECT_EQ(third.progress.paths.size(), 11U) << "one of which was checked";
    EXPECT_EQ(third.reporter.reasons.at(0).find("The search ended early, because 10 files "), 0U);
}

} // namespace ovisto::test
