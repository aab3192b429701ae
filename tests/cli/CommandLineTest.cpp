// SPDX-License-Identifier: MIT

#include "collection/DocumentLoad.h"
#include "common/Libraries.h"
#include "common/system/File.h"
#include "common/text/Unicode.h"
#include "support/CommandRun.h"
#include "support/JpegBytes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <regex>

namespace ovisto::test {

namespace {

const std::string kTitle = "/JPEG/Exif[@id='FFE1']/IFD[@id='9C9B']";

CommandRun ovisto(std::vector<std::string> arguments, const std::string& input = {})
{
    arguments.insert(arguments.begin(), OVISTO_CLI);
    return runCommand(arguments, input);
}

/// Expects one line on standard error that names the file and the reason.
void expectOneLine(const CommandRun& run, const std::string& file, const std::string& reason, int status = 1)
{
    EXPECT_EQ(run.status, status) << run.errors;
    EXPECT_EQ(std::ranges::count(run.errors, '\n'), 1) << run.errors;
    EXPECT_NE(run.errors.find(file), std::string::npos) << run.errors;
    EXPECT_NE(run.errors.find(reason), std::string::npos) << run.errors;
}

/// What a command writes to a terminal that is its standard error.
std::string onTerminal(const std::vector<std::string>& arguments)
{
    std::string line = "'" OVISTO_CLI "'";
    for (const std::string& argument : arguments)
        line += " \"" + argument + "\"";
    return runCommand({"script", "-qec", line + " >/dev/null", "/dev/null"}).output;
}

std::string textOf(const std::string& path)
{
    const Bytes content = contentOf(path);
    return {content.begin(), content.end()};
}

std::string titleOf(const std::string& path)
{
    return loadDocument(path).selectSingleNode(kTitle).text();
}

} // namespace

TEST(CommandLine, TellsTheDocumentExactlyAndTheErrorBesideIt)
{
    const TemporaryFolder folder;
    const std::string good = folder.file("a.jpg", fullPhotograph(true));
    const std::string cut = folder.file("b.jpg", JpegBytes().app0().unfinished());
    const std::string text = JpegXml().XMLtranslate(good).text;
    const CommandRun run = ovisto({"xml", good, cut, good});
    EXPECT_EQ(run.output, text + JpegXml().XMLtranslate(cut).text + text);
    expectOneLine(run, cut, "No StartOfStream marker found " + cut);
    const CommandRun less = ovisto({"xml", "--no-maker-notes", "--no-thumbnails", "--no-nonstandard-exif", good});
    EXPECT_EQ(less.output, JpegXml().XMLtranslate(good, {false, false, false}).text);
    EXPECT_EQ(less.status, 0);
}

TEST(CommandLine, ShowsLabelsValuesAndDataTypes)
{
    const TemporaryFolder folder;
    const std::string path = folder.file("a.jpg", fullPhotograph(false));
    const CommandRun run = ovisto({"show", path});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.output.find(path + "\nJPEG File\n  Exif Data\n    Camera Make: Acme (String)\n"), 0U) << run.output;
    EXPECT_NE(run.output.find("\n    Title: Héllo (Unicode String)\n"), std::string::npos);
    EXPECT_NE(run.output.find("\n      Exposure Time: 1/250 s [1/250] (Rational)\n"), std::string::npos);
    EXPECT_EQ(run.output.find("Exif Version"), std::string::npos);
    EXPECT_NE(ovisto({"show", "--technical", "--raw", path}).output.find("Exif Version: 0220 (Undefined)\n"),
              std::string::npos);
    const CommandRun sample = ovisto({"show", OVISTO_OWN_SAMPLES "little-endian.jpg"});
    for (const char* line : {"Orientation: upright (1) (Short)\n", "Flash: not fired, forced off (0x10) [16] (Short)\n",
                             "Thumbnail: 4,475 bytes [FFD8FFE000104A464946000101000001", "F-number: f/8 [8/1] (Rat"})
        EXPECT_NE(sample.output.find(line), std::string::npos) << line << sample.output;
}

TEST(CommandLine, SendsNoControlsToATerminal)
{
    const TemporaryFolder folder;
    ExifBytes exif;
    exif.ifd0({exif.ascii(0x010F, "red\x9B"
                                  "31m\x1B[31m\x7F")});
    std::string shown = ovisto({"show", folder.file("\xC2\x9B"
                                                    "31m.jpg",
                                                    JpegBytes().exif(exif).end())})
                            .output;
    EXPECT_NE(shown.find("red"), std::string::npos);
    const std::string name = "\x1B]0;title\a\xFF.jpg";
    const Bytes illFormed = JpegBytes().segment(0xFFE1, bytes("x") + Bytes{0} + bytes("]]>")).end();
    shown +=
        ovisto({"show", folder.path("none" + name)}).errors + ovisto({"show", folder.file(name, illFormed)}).errors;
    EXPECT_NE(shown.find("]0;title"), std::string::npos);
    shown += onTerminal({"find", folder.path("")}); // the progress bar
    EXPECT_NE(shown.find("\x1B[K0 "), std::string::npos) << shown;
    const std::string bar = "\r\x1B[K"; // to the start of the line, and delete it
    for (std::size_t place = shown.find(bar); place != std::string::npos; place = shown.find(bar))
        shown.erase(place, bar.size());
    for (const char32_t character : characters(shown))
        EXPECT_TRUE(character == U'\n' || (character >= U' ' && character < 0x7F) || character >= 0xA0) << shown;
}

TEST(CommandLine, ChangesFilesNamedInEveryWay)
{
    const TemporaryFolder folder;
    const std::string first = folder.file("a.jpg", JpegBytes().app0().end());
    // As long as a name may be; the temporary one has to be shorter.
    const std::string second = folder.file("line\nbreak\\" + std::string(240, 'x') + ".jpg", JpegBytes().app0().end());
    const std::string third = folder.file("~a.jpg.jpg", JpegBytes().app0().end());
    EXPECT_EQ(ovisto({"set", kTitle, "One", first}).status, 0);
    EXPECT_EQ(ovisto({"set", kTitle, "Two", "--files-from", "-", "-0"}, second + '\0' + third + '\0').status, 0);
    EXPECT_EQ(titleOf(first) + titleOf(second) + titleOf(third), "OneTwoTwo");
    EXPECT_EQ(ovisto({"set", kTitle, "Same", "--jobs", "4", first, folder.path("./a.jpg"), first}).status, 0);
    EXPECT_EQ(titleOf(first), "Same");
    EXPECT_EQ(ovisto({"delete", kTitle, "--files-from", folder.file("list", first + "\r\n\n" + third + "\n")}).status,
              0);
    EXPECT_EQ(titleOf(first) + titleOf(third), "");
    EXPECT_EQ(ovisto({"add", "/JPEG/Exif[@id='FFE1']/IFD1/THUM", first}).status, 0);
    EXPECT_TRUE(loadDocument(first).selectSingleNode("//IFD1"));
    EXPECT_EQ(ovisto({"set", "/JPEG/Exif[@id='FFE1']/IFD[@id='8298']", "\xA9 2024", first}).status, 0);
    EXPECT_EQ(loadDocument(first).selectSingleNode("//IFD[@id='8298']").text(), "© 2024") << "from a Latin-1 terminal";
    EXPECT_EQ(folder.names().size(), 4U) << "no temporary file stays";
}

TEST(CommandLine, CountsOnATerminalWhatItChanged)
{
    const TemporaryFolder folder;
    std::vector<std::string> arguments{"set", kTitle, "New", folder.path("none.jpg")};
    for (const char* name : {"a.jpg", "b.jpg"})
        arguments.push_back(folder.file(name, JpegBytes().app0().end()));
    EXPECT_TRUE(onTerminal(arguments).ends_with("\r\n2 changed, 1 failed\r\n"));
    arguments.push_back(folder.file("c.jpg", JpegBytes().app0().end()));
    EXPECT_TRUE(onTerminal(arguments).ends_with("\r\n1 changed, 2 unchanged, 1 failed\r\n"));
    arguments.resize(3);
    for (int i = 0; i < 1001; ++i)
        arguments.push_back(folder.path(std::to_string(i)));
    EXPECT_TRUE(onTerminal(arguments).ends_with("\r\n0 changed, 1,001 failed\r\n"));
    EXPECT_EQ(onTerminal({"set", kTitle, "Other", folder.path("a.jpg")}), "") << "one file needs no count";
}

TEST(CommandLine, DoesNotDestroyAFileThatHasATemporaryName)
{
    const TemporaryFolder folder;
    const std::string first = folder.file("a.jpg", JpegBytes().app0().end());
    const std::string second = folder.file("~a.jpg", JpegBytes().app0().end());
    EXPECT_EQ(ovisto({"set", kTitle, "New", first, second}).status, 0);
    EXPECT_EQ(titleOf(first) + titleOf(second), "NewNew");
    EXPECT_EQ(ovisto({"write", "--jobs", "1", first, second}).status, 0);
    EXPECT_EQ(ovisto({"export", first, second}).status, 0);
    EXPECT_EQ(folder.names(), (std::vector<std::string>{"a.jpg", "a.jpg.XML", "~a.jpg", "~a.jpg.XML"}));
}

TEST(CommandLine, WritesAFileFromItsOwnOrAnEditedDocument)
{
    const TemporaryFolder folder;
    const std::string path = folder.file("a.jpg", fullPhotograph(true));
    std::string edited = ovisto({"xml", path}).output;
    edited.replace(edited.find(">Acme<"), 6, ">Acme & Sons<");
    const std::string documentPath = folder.path("edited.xml");
    folder.file("edited.xml", edited);
    expectOneLine(ovisto({"write", "--document", documentPath, path}), path, documentPath + ": ");
    edited.replace(edited.find("&"), 1, "&amp;");
    folder.file("edited.xml", edited);
    EXPECT_EQ(ovisto({"write", "--document", documentPath, path}).errors, "");
    EXPECT_EQ(loadDocument(path).selectSingleNode("//IFD[@id='010F']").text(), "Acme & Sons");
    const Bytes before = contentOf(path);
    expectOneLine(ovisto({"write", "--document", documentPath, path}), path, "before it was changed");
    EXPECT_EQ(ovisto({"write", "--force", "--document", documentPath, path}).errors, "");
    EXPECT_EQ(contentOf(path), before) << "which says the same";
    folder.file("edited.xml", "<HTML/>");
    expectOneLine(ovisto({"write", "--document", documentPath, path}), path, "The root element is not JPEG");
    expectOneLine(ovisto({"write", "--document", folder.path("none.xml"), path}), path, "File not found");
    std::string withoutScan = ovisto({"xml", path}).output;
    withoutScan.erase(withoutScan.find("<SOS"), withoutScan.find("<IMG") - withoutScan.find("<SOS"));
    folder.file("edited.xml", withoutScan);
    expectOneLine(ovisto({"write", "--document", documentPath, path}), path, "describes another image");
    std::string otherTable = ovisto({"xml", path}).output;
    otherTable.insert(otherTable.find("</SOS>"), "00");
    folder.file("edited.xml", otherTable);
    expectOneLine(ovisto({"write", "--document", documentPath, path}), path, "would change the picture");
    EXPECT_EQ(contentOf(path), before);
    EXPECT_EQ(ovisto({"write", path}).status, 0);
    EXPECT_EQ(contentOf(path), before);
}

TEST(CommandLine, ExportsBesideTheImage)
{
    const TemporaryFolder folder;
    const std::string path = folder.file("a.jpg", fullPhotograph(true));
    EXPECT_EQ(ovisto({"export", path}).status, 0);
    XmlDocument exported;
    EXPECT_FALSE(exported.loadFile(path + ".XML", Validation::Off, WhiteSpace::Preserve));
    EXPECT_EQ(exported.selectSingleNode("//IFD[@id='9C9B']").text(), "Héllo");
    std::filesystem::create_directory(folder.path("b.jpg.XML"));
    expectOneLine(ovisto({"export", folder.file("b.jpg", fullPhotograph(true))}), "b.jpg", "Save XML File ");
}

TEST(CommandLine, SaysInOneLineWhyAFileFailedAndDoesTheOthers)
{
    const TemporaryFolder folder;
    const std::string good = folder.file("good.jpg", JpegBytes().app0().end());
    const std::string readOnly = folder.file("locked.jpg", JpegBytes().app0().end());
    std::filesystem::permissions(readOnly, std::filesystem::perms::owner_read);
    const std::string broken =
        folder.file("cdata.jpg", JpegBytes().segment(0xFFE1, bytes("x") + Bytes{0} + bytes("]]> &")).end());
    const struct {
        std::string path;
        std::string reason;
    } cases[] = {
        {folder.path("none.jpg"), "none.jpg: File not found\n"},
        {folder.path("none/a.jpg"), "none/a.jpg: Path not found\n"},
        {folder.path("."), ": It is a folder, not a file\n"},
        {"/dev/null", "/dev/null: It is not a regular file\n"},
        {folder.file("empty.jpg", Bytes{}), "Not a JPEG file - hFFD8 expected"},
        {folder.file("text.jpg", "hello"), "Not a JPEG file - hFFD8 expected"},
        {folder.file("short.jpg", Bytes{0xFF, 0xD8, 0xFF}), "Header seems corrupted - unknown Marker FF00"},
        {readOnly, "Delete old file " + readOnly + ": Permission denied"},
    };
    for (const auto& c : cases) {
        std::filesystem::remove(good);
        folder.file("good.jpg", JpegBytes().app0().end());
        const Bytes before = contentOf(c.path);
        expectOneLine(ovisto({"set", kTitle, "New", c.path, good}), c.path, c.reason);
        EXPECT_EQ(titleOf(good), "New") << c.path;
        EXPECT_EQ(contentOf(c.path), before) << c.path;
    }
    expectOneLine(ovisto({"set", "--basic", kTitle, "New", broken}), broken, " line:");
}

TEST(CommandLine, RefusesNodesThatItCannotChange)
{
    const TemporaryFolder folder;
    const Bytes before = fullPhotograph(true);
    const std::string path = folder.file("a.jpg", before);
    const std::string exif = "/JPEG/Exif[@id='FFE1']";
    const struct {
        std::vector<std::string> arguments;
        std::string reason;
        int status;
    } cases[] = {
        {{"delete", "nonsense["}, "nonsense[: Not a node path", 2},
        {{"delete", "/JPEG/Nonsense"}, "/JPEG/Nonsense: No photograph has ", 2},
        {{"add", exif + "/IFD[@id='ABCD']"}, "no entry for this node", 2},
        {{"set", exif + "/IFDE", "1"}, "I don't know what type of data this node requires", 2},
        {{"delete", "/JPEG/SOS"}, "The image cannot be shown without this node", 2},
        {{"set", "--rebuild", exif + "/IFDG/IFD[@id='ABCD']", "1"}, "rebuilding reads a basic one", 2},
        {{"set", "--basic", exif + "/IFD[@id='010F']", "\xCE\xA9"}, "would be written as \"?\"", 2},
        {{"set", exif + "/IFD[@id='ABCD']", "1"}, "does not have this node", 1},
        {{"set", exif + "/IFD[@id='0112']", "up"}, "Exif 0112: Type mismatch", 1},
        {{"set", "--rebuild", exif + "/IFD[@id='0112']", ""}, "Data format 3 error:: Type mismatch", 1},
    };
    for (const auto& c : cases) {
        std::vector<std::string> arguments = c.arguments;
        arguments.push_back(path);
        if (c.status == 2) // for all files at once: none is opened
            arguments.push_back(folder.path("none.jpg"));
        expectOneLine(ovisto(arguments), c.status == 2 ? "ovisto-cli: " : path, c.reason, c.status);
        EXPECT_EQ(contentOf(path), before) << c.reason;
    }
    expectOneLine(ovisto({"set", kTitle, "x", "--dictionary", folder.path("none.xml"), path}), "none.xml",
                  "File not found");
}

TEST(CommandLine, ChangesEntriesThatTheDictionaryDoesNotKnow)
{
    const TemporaryFolder folder;
    const std::string node = "/JPEG/Exif[@id='FFE1']/IFD[@id='ABCD']";
    ExifBytes exif;
    exif.ifd0({exif.ascii(0x010F, "Acme"), exif.ascii(0xABCD, "old")});
    const std::string path = folder.file("a.jpg", JpegBytes().exif(exif).end());
    EXPECT_EQ(ovisto({"set", node, "new value", path}).errors, "");
    EXPECT_EQ(loadDocument(path).selectSingleNode(node).text(), "new value");
    expectOneLine(ovisto({"set", "--basic", node, "\xCE\xA9", path}), path, "would be written as \"?\"");
    EXPECT_EQ(ovisto({"delete", node, path, folder.file("b.jpg", JpegBytes().app0().end())}).errors, "");
    EXPECT_FALSE(loadDocument(path).selectSingleNode(node));

    const Bytes segment = bytes("x");
    const Bytes before = JpegBytes().segment(0xFFFE, segment).segment(0xFFFE, segment).end();
    const std::string twice = folder.file("twice.jpg", before);
    expectOneLine(ovisto({"delete", "/JPEG/APP1[@id='FFFE']", twice, path}), twice, "2 nodes of the file");
    EXPECT_EQ(contentOf(twice), before);
}

TEST(CommandLine, KeepsOutputInInputOrderWithManyJobs)
{
    const TemporaryFolder folder;
    std::string names;
    std::string expected;
    for (int i = 0; i < 300; ++i) {
        const std::string path =
            folder.file(std::to_string(i) + ".jpg", i % 7 == 0 ? fullPhotograph(true) : JpegBytes().end());
        names += path + "\n";
        expected += JpegXml().XMLtranslate(path).text;
    }
    const CommandRun run = ovisto({"xml", "--jobs", "8", "--files-from", "-"}, names);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.output, expected);
}

TEST(CommandLine, GivesUpASearchThatRunsTooLongOnManyFiles)
{
    const TemporaryFolder folder;
    ExifBytes exif;
    exif.ifd0({exif.ascii(0x010E, std::string(200, 'a'))});
    const std::string file = folder.file("0.jpg", JpegBytes().exif(exif).end());
    const std::string found = folder.file("found.jpg", JpegBytes().app0().end());
    const std::vector<std::string> search = {"find", folder.path(""), "--regexp", "--words", "(a+)+~|<APP0"};
    const CommandRun few = ovisto(search);
    EXPECT_EQ(few.output, found + "\n");
    expectOneLine(few, file + ": The regular expression runs too long", "");
    for (int i = 1; i <= 20; ++i)
        std::filesystem::create_symlink(file, folder.path(std::to_string(i) + ".jpg"));
    expectOneLine(ovisto(search), "The search ended early, because 1", " files could not be checked. The first: ");
    // The files that it did not check are known only without a folder.
    const TemporaryFolder lists;
    const std::string list = lists.file("undone", "as before");
    std::vector<std::string> arguments = search;
    arguments.insert(arguments.end(), {"--failed-to", list});
    EXPECT_NE(ovisto(arguments).errors.find("lack files of the folder"), std::string::npos);
    EXPECT_EQ(textOf(list), "as before");
    // Nor does it know those of a folder that it cannot read: here, one whose path is too long.
    const std::string deep = "cd '" + lists.path("") +
                             "' && name=$(printf %0250d 0) && for i in $(seq 20); do mkdir "
                             "$name && cd $name; done";
    ASSERT_EQ(runCommand({"bash", "-c", deep}).status, 0);
    const CommandRun skipped = ovisto({"find", lists.path(""), "--failed-to", list});
    EXPECT_NE(skipped.errors.find("lack files of the folder"), std::string::npos) << skipped.errors;
    EXPECT_EQ(textOf(list), "as before");
    runCommand({"rm", "-rf", lists.path(std::string(250, '0'))});
    expectOneLine(ovisto({"find", "--files-from", lists.path("none"), "--failed-to", list}), "none", "File not found");
    EXPECT_EQ(textOf(list), "as before");
    std::string files = found + '\n';
    for (int i = 0; i <= 20; ++i)
        files += folder.path(std::to_string(i) + ".jpg") + '\n';
    arguments[1] = "--files-from=-";
    EXPECT_EQ(ovisto(arguments, files).status, 1);
    EXPECT_EQ(textOf(list), files.substr(files.find('\n') + 1));
}

TEST(CommandLine, FindsFilesInScanOrder)
{
    const TemporaryFolder folder;
    std::filesystem::create_directories(folder.path("sub"));
    const std::string second = folder.file("sub/line\nbreak.JPG", fullPhotograph(false));
    const std::string first = folder.file("b.jpg", fullPhotograph(true));
    folder.file("a.jpg", JpegBytes().app0().end());
    const std::string root = folder.path("");
    EXPECT_EQ(ovisto({"find", root, "--words", "acme,nothing", "-0"}).output, first + '\0' + second + '\0');
    EXPECT_EQ(ovisto({"find", root, "--words", "acme,nothing", "--all-words"}).output, "");
    EXPECT_EQ(
        ovisto({"find", root, "--pattern", "?.jpg", "--no-subfolders", "--words", "^<IFD.*>ACME<", "--regexp"}).output,
        first + "\n");
    EXPECT_EQ(ovisto({"find", root, "--words", "acm", "--whole-words"}).status, 0) << "to find nothing is no failure";
    expectOneLine(ovisto({"find", root, "--words", "(", "--regexp"}), "Not a regular expression: (: ", "", 2);
    expectOneLine(ovisto({"find", root, "--words", "a,b(", "--whole-words"}), "The words \"a,b(\" ", "\\ before", 2);
    expectOneLine(ovisto({"find", first}), first, "It is not a folder");
    EXPECT_EQ(ovisto({"find"}).status, 2);
    const std::string list = folder.path("a.jpg") + '\n' + folder.file("other.name", fullPhotograph(true)) + '\n';
    EXPECT_EQ(ovisto({"find", "--files-from", "-", "--words", "acme"}, list).output, folder.path("other.name") + "\n");
    EXPECT_EQ(ovisto({"find", root, "--no-subfolders", "--pattern", "b*", "--files-from", "-"}, list).output,
              first + "\n" + list);
    expectOneLine(ovisto({"find", folder.path("none")}), "none", "Folder not found");
    const std::string piped = "echo '" + first + "' | '" OVISTO_CLI "' find --files-from /dev/stdin";
    EXPECT_EQ(runCommand({"sh", "-c", piped}).output, first + "\n");
    const CommandRun found = ovisto({"find", root, "-0", "--jobs", "1"});
    EXPECT_EQ(ovisto({"delete", kTitle, "--files-from", "-", "-0"}, found.output).errors, "");
    EXPECT_EQ(titleOf(second), "");
}

TEST(CommandLine, ReportsOnManyFilesAtOnce)
{
    const TemporaryFolder folder;
    const std::string good = folder.file("a.jpg", fullPhotograph(true));
    const std::string style = folder.file("style.xsl", "<t xsl:version='1.0' xmlns:xsl='http://www.w3.org/1999/XSL/"
                                                       "Transform'><xsl:value-of select='//IFD[@id=\"9C9B\"]'/></t>");
    EXPECT_EQ(ovisto({"report", "--style", style, good}).output,
              "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<t>Héllo</t>\n");
    const std::string output = folder.path("out.xml");
    const std::string broken = folder.file("broken.jpg", "no photograph");
    expectOneLine(ovisto({"report", "--style", style, "--output", output, broken, good}), broken, "Not a JPEG file");
    XmlDocument written;
    EXPECT_FALSE(written.loadFile(output, Validation::Off, WhiteSpace::Preserve));
    EXPECT_EQ(written.documentElement().text(), "Héllo");

    const Bytes before = contentOf(output);
    const std::string failing = folder.file("failing.xsl", "<xsl:stylesheet/>");
    expectOneLine(ovisto({"report", "--style", failing, "--output", output, good}), failing, "");
    expectOneLine(ovisto({"report", "--style", folder.path("none.xsl"), good}), "none.xsl", "File not found");
    EXPECT_EQ(contentOf(output), before);
    for (const char* place : {"none/out", "."}) // before any file is read
        expectOneLine(ovisto({"report", "--style", style, "--output", folder.path(place), broken}), place, "folder");
    EXPECT_EQ(contentOf(output), bytes("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<t>H\xC3\xA9llo</t>\n"));
    EXPECT_EQ(ovisto({"report", "--style", style, "--output", output, "--encoding", "utf-16", good}).status, 0);
    EXPECT_EQ(contentOf(output)[0], 0xFF) << "of the byte-order mark";
    EXPECT_EQ(ovisto({"report", good}).status, 2);
    // Of the program's own temporary files, only those go that nobody holds.
    const TemporaryFolder temporary;
    const OutputFile held(temporary.path("ovisto-0123456789abcdef.tmp"));
    temporary.file("ovisto-fedcba9876543210.tmp", "left by a killed report");
    temporary.file("ovisto-notes.tmp", "");
    const std::string folderOption = "TMPDIR=" + temporary.path("");
    EXPECT_EQ(runCommand({"/usr/bin/env", folderOption, OVISTO_CLI, "report", "--style", style, good}).status, 0);
    EXPECT_EQ(temporary.names(), (std::vector<std::string>{"ovisto-0123456789abcdef.tmp", "ovisto-notes.tmp"}));
    const std::string piped = "cat '" + style + "' | '" OVISTO_CLI "' report --style /dev/stdin '" + good + "'";
    EXPECT_NE(runCommand({"sh", "-c", piped}).output.find("<t>Héllo</t>"), std::string::npos);
}

TEST(CommandLine, TellsUsageFromFailure)
{
    const TemporaryFolder folder;
    EXPECT_EQ(ovisto({"--help"}).status, 0);
    EXPECT_EQ(ovisto({"set", "--help"}).status, 0);
    const std::string help = ovisto({"find", "--help"}).output + ovisto({"report", "--help"}).output;
    for (const char* wrong : {"{", "[FILE"})
        EXPECT_EQ(help.find(wrong), std::string::npos) << wrong;
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{},
                                                      {"xml"},
                                                      {"frobnicate"},
                                                      {"set", kTitle},
                                                      {"xml", ""},
                                                      {"xml", "a.jpg", "--failed-to", "-"},
                                                      {"xml", "--jobs", "none", "a.jpg"},
                                                      {"write", "--document", "a.xml", "a.jpg", "b.jpg"},
                                                      {"xml", "--no-such-option", "a.jpg"}})
        expectOneLine(ovisto(arguments), "ovisto-cli: ", " --help\n", 2);
    for (const char* jobs : {"x", "0", "1025", "2x", "-1"})
        expectOneLine(ovisto({"xml", "--jobs", jobs, "a.jpg"}), jobs, "is not a number from 1 to 1024", 2);
    expectOneLine(ovisto({"xml", "--files-from", folder.path("none")}), folder.path("none"), "");
    expectOneLine(ovisto({"xml", "--files-from", folder.path(".")}), folder.path("."), "It is a folder");
    EXPECT_EQ(ovisto({"xml", "--files-from", "-"}).status, 0) << "an empty list is done at once";
}

TEST(CommandLine, NamesEveryLibraryThatItIsLinkedWith)
{
    if (!isInstalled("readelf"))
        GTEST_SKIP() << "readelf (binutils) is not installed";
    std::string versions = ovisto({"--version"}).output;
    EXPECT_EQ(versions.find(std::string("ovisto-cli ") + programVersion() + "\n"), 0U) << versions;
    EXPECT_EQ(std::ranges::count(versions, '\n'), std::ranges::count(versions, ' ')) << versions;
    std::ranges::transform(versions, versions.begin(),
                           [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    const std::string dynamic = runCommand({"readelf", "-d", OVISTO_CLI}).output;
    const std::regex needed(R"(\(NEEDED\).*\[(?!ld-|libc\.|libm\.|libgcc|libstdc|lib[a-z]*san\.)lib([a-z0-9]+))");
    int count = 0;
    for (std::sregex_iterator library(dynamic.begin(), dynamic.end(), needed), end; library != end; ++library, ++count)
        EXPECT_NE(versions.find((*library)[1]), std::string::npos) << (*library)[1] << " is not in:\n" << versions;
    EXPECT_GE(count, 6) << dynamic;
}

TEST(CommandLine, DoesNotWriteAReportOverAPhotograph)
{
    const TemporaryFolder folder;
    const std::string first = folder.file("a.jpg", fullPhotograph(true));
    const std::string second = folder.file("b.jpg", fullPhotograph(true));
    const std::string styleSheet = OVISTO_DATA_FOLDER "reports/list.xsl";
    expectOneLine(ovisto({"report", "--style", styleSheet, "--output", first, second}), first, "not replaced");
    EXPECT_EQ(contentOf(first), fullPhotograph(true));
}

TEST(CommandLine, ListsTheFilesThatItDidNotDo)
{
    const TemporaryFolder folder;
    const TemporaryFolder lists;
    const std::string list = lists.path("undone");
    const std::string style = OVISTO_DATA_FOLDER "reports/list.xsl";
    const std::string broken = folder.file("a.jpg", "no photograph");
    const std::string none = folder.path("none.jpg");
    std::string files;
    for (int i = 0; i < 40; ++i)
        files += folder.file("good" + std::to_string(i) + ".jpg", JpegBytes().app0().end()) + '\n' +
                 (i == 7    ? none + '\n'
                  : i == 30 ? broken + '\n'
                            : "");
    const std::vector<std::vector<std::string>> commands = {{"show"},
                                                            {"xml"},
                                                            {"export"},
                                                            {"check"},
                                                            {"set", kTitle, "New"},
                                                            {"clean"},
                                                            {"report", "--style", style},
                                                            {"report", "--style", "list", "--output", lists.path("r")}};
    for (const auto& command : commands) {
        for (const std::string& only : {std::string(), folder.path("good1.jpg") + '\n'}) {
            std::vector<std::string> arguments = command;
            arguments.insert(arguments.end(), {"--jobs", "3", "--files-from", "-", "--failed-to", list});
            EXPECT_EQ(ovisto(arguments, only.empty() ? files : only).status, only.empty() ? 1 : 0) << command.front();
            EXPECT_EQ(textOf(list), only.empty() ? none + '\n' + broken + '\n' : "") << command.front();
        }
    }
    // What is still to be done may stand in the same file. With -0, a name may have any bytes.
    const std::string strange = folder.path("line\nbreak.jpg");
    const std::string undone = std::string("\xEF\xBB\xBFnone.jpg") + '\0' + strange + '\0';
    lists.file("undone", undone);
    EXPECT_EQ(ovisto({"set", kTitle, "New", "-0", "--files-from", list, "--failed-to", list}).status, 1);
    EXPECT_EQ(textOf(list), undone);
    const std::string good = folder.path("good3.jpg");
    const Bytes before = contentOf(good);
    expectOneLine(ovisto({"set", kTitle, "Newer", "--failed-to", list, good, strange}), list, "with -0");
    expectOneLine(ovisto({"set", kTitle, "Newer", "--failed-to", folder.path("no/list"), good}), "no/list",
                  "no folder");
    expectOneLine(ovisto({"set", kTitle, "Newer", "--failed-to", good, good}), good, "not replaced by a list");
    EXPECT_EQ(ovisto({"set", "nonsense[", "Newer", "--failed-to", list, good}).status, 2);
    EXPECT_EQ(contentOf(good), before) << "nothing is done without the list";
    EXPECT_EQ(textOf(list), undone) << "nor is the list written when nothing is done";
    const auto inShell = [](const std::string& arguments) {
        return runCommand({"sh", "-c", "'" OVISTO_CLI "' " + arguments});
    };
    for (const char* lost : {">/dev/full", ">&-", ">&- 2>&-"}) { // the list is not standard output when that is closed
        lists.file("undone", "");
        EXPECT_EQ(inShell("xml '" + good + "' --failed-to '" + list + "' " + lost).status, 1);
        EXPECT_EQ(textOf(list), good + '\n') << "what is lost on standard output was not done: " << lost;
    }
    for (const char* lost : {"<&-", "< /"}) {
        EXPECT_EQ(inShell("show --files-from - --failed-to '" + list + "' " + lost).status, 1) << lost;
        EXPECT_EQ(textOf(list), good + '\n') << lost;
    }
    // What is printed, and what the command reads, is not replaced by the list.
    const std::string printed = lists.path("printed");
    EXPECT_EQ(inShell("xml '" + good + "' --failed-to /dev/stdout >'" + printed + "'").status, 1);
    EXPECT_EQ(inShell("xml '" + none + "' --failed-to /dev/stderr 2>'" + printed + "'").status, 1);
    EXPECT_NE(textOf(printed).find("goes there already"), std::string::npos);
    const std::string own = lists.file("own.xsl", textOf(style));
    expectOneLine(ovisto({"show", "--failed-to", own, good}), own, "not a list");
    const std::string tiff = lists.file("a.tif", std::string("II*\0\b\0\0\0", 8));
    expectOneLine(ovisto({"show", "--failed-to", tiff, good}), tiff, "not a list");
}

TEST(CommandLine, FindsItsOwnStyleSheetsByName)
{
    const TemporaryFolder folder;
    const std::string sample = OVISTO_OWN_SAMPLES "little-endian.jpg";
    const auto report = [&](const std::string& style) {
        return runCommand(
            {"sh", "-c",
             "cd '" + folder.path("") + "' && '" OVISTO_CLI "' report --style " + style + " '" + sample + "'"});
    };
    const std::string own = "<t xsl:version='1.0' xmlns:xsl='http://www.w3.org/1999/XSL/Transform'>own</t>";
    folder.file("csv", own);
    folder.file("mine", own);
    EXPECT_EQ(report("csv").output.find("Folder,File,Title"), 0U) << "whatever is in the current folder";
    for (const char* file : {"./csv", "mine"})
        EXPECT_NE(report(file).output.find("<t>own</t>"), std::string::npos) << file;
    expectOneLine(report("tabel"), "tabel: ", "csv, list, statistics, table", 2);
    expectOneLine(report("table.xsl"), "table.xsl", "File not found");
}

TEST(CommandLine, NoticesThatItsOutputIsLost)
{
    const TemporaryFolder folder;
    const std::string path = folder.file("a.jpg", fullPhotograph(true));
    const CommandRun run = runCommand({"sh", "-c", "'" OVISTO_CLI "' xml '" + path + "' >/dev/full"});
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.errors, "");
}

} // namespace ovisto::test
