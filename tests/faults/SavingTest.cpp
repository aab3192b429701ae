// SPDX-License-Identifier: MIT

#include "collection/BatchAction.h"
#include "collection/DocumentLoad.h"
#include "collection/DocumentSaving.h"
#include "collection/FolderScan.h"
#include "common/system/File.h"
#include "document/MetadataDocument.h"
#include "support/CommandRun.h"
#include "support/CountingProgress.h"
#include "support/Dictionary.h"
#include "support/FaultyCalls.h"
#include "support/JpegBytes.h"
#include "support/RecordingReporter.h"
#include "support/Rewriting.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>

#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace ovisto::test {

namespace fs = std::filesystem;

namespace {

using Names = std::vector<std::string>;

const std::string kTitle = "/JPEG/Exif[@id='FFE1']/IFD[@id='9C9B']";

bool contains(const Names& names, const std::string& name)
{
    return std::ranges::find(names, name) != names.end();
}

bool startsWithOneOf(const std::string& call, const Names& beginnings)
{
    return std::ranges::any_of(beginnings, [&](const std::string& beginning) { return call.starts_with(beginning); });
}

/// One of the ways in which the program saves files.
struct Way {
    std::string name;
    Names files;
    Bytes before; ///< what is in each of them
    std::function<void(const TemporaryFolder&, ErrorReporter&)> save;
    bool findsLeftover = false; ///< whether an incomplete new version is there before
};

const Bytes kLeftover = Bytes{0xFF, 0xD8} + bytes("left by an earlier save");

void saveChanged(const std::string& path, WritingWay way, ErrorReporter& reporter)
{
    const FileReading reading = readFile(path);
    XmlDocument document = documentOf(reading.text);
    document.selectSingleNode("/JPEG/Exif/IFD").setText("Another maker");
    saveDocument(document, reading.identity, path, {way}, reporter);
}

Way singleSave()
{
    ExifBytes exif(false); // the new version is little-endian
    exif.ifd0({exif.ascii(0x010F, "Acme")});
    JpegBytes photograph; // with more before its image than the reader keeps of a file at a time
    photograph.exif(exif).segment(0xFFE2, Bytes(60'000, 0x11)).segment(0xFFE3, Bytes(60'000, 0x22));
    const auto save = [](const TemporaryFolder& folder, ErrorReporter& reporter) {
        folder.file("~a.jpg", kLeftover);
        rewrite(folder.path("a.jpg"), reporter);
    };
    return {"single save", {"a.jpg"}, photograph.end(Bytes(70'000, 0x33)), save, true};
}

Way keepingSave()
{
    Way way = singleSave();
    way.name = "save that keeps the rest";
    way.findsLeftover = false;
    way.save = [](const TemporaryFolder& folder, ErrorReporter& reporter) {
        saveChanged(folder.path("a.jpg"), WritingWay::Keep, reporter);
    };
    return way;
}

/// A save that loses something, and therefore keeps the original.
Way losingSave()
{
    const auto save = [](const TemporaryFolder& folder, ErrorReporter& reporter) {
        saveChanged(folder.path("a.jpg"), WritingWay::Rebuild, reporter);
    };
    return {"save that loses something", {"a.jpg"}, fullPhotograph(false), save};
}

Way textFile()
{
    const auto save = [](const TemporaryFolder& folder, ErrorReporter&) {
        fs::create_symlink("a.txt", folder.path("link"));
        ErrorTrap trap;
        trap.run([&] { writeTextFile(folder.path("link"), std::string(70'000, 'n')); });
        EXPECT_TRUE(fs::is_symlink(folder.path("link")));
        fs::remove(folder.path("link"));
        trap.raise();
    };
    return {"text file", {"a.txt"}, bytes("old"), save};
}

Way batchOf(int count)
{
    Names files;
    for (int i = 0; i < count; ++i)
        files.push_back(std::to_string(100 + i) + ".jpg");
    const NodeChange change{NodeAction::Set, dictionary().entry(kTitle), "New"};
    const auto save = [files, change](const TemporaryFolder& folder, ErrorReporter& reporter) {
        Names paths;
        std::ranges::transform(files, std::back_inserter(paths), [&](const auto& file) { return folder.path(file); });
        CountingProgress progress;
        BatchAction(paths, change).run(progress, reporter);
    };
    return {"batch", files, JpegBytes().app0().end(), save};
}

/// What a new version takes from the old one besides its content.
std::string attributesOf(const std::string& path)
{
    struct stat status = {};
    stat(path.c_str(), &status);
    std::string comment(10, '\0');
    getxattr(path.c_str(), "user.comment", comment.data(), comment.size());
    return std::to_string(status.st_mode) + " " + std::to_string(status.st_uid) + " " + std::to_string(status.st_gid) +
           " " + comment;
}

/// Gives a file attributes that a new file would not have, as far as the file system and the user's rights go.
void setAttributes(const std::string& path)
{
    constexpr uid_t kSomebodyElse = 12345;
    setxattr(path.c_str(), "user.comment", "mine", 4, 0);
    ASSERT_TRUE(chown(path.c_str(), kSomebodyElse, kSomebodyElse) == 0 || errno == EPERM);
    ASSERT_EQ(chmod(path.c_str(), 0640), 0);
    // A file that was changed just now is looked at more closely. How many calls that takes must not depend on how busy
    // the machine is.
    fs::last_write_time(path, fs::file_time_type::clock::now() + std::chrono::hours(1));
}

/// What became of the files.
struct Outcome {
    Names failed;                          ///< those that were reported
    Names contexts;                        ///< of the reports, without the folder
    std::vector<int> numbers;              ///< of the errors
    Names reasons;                         ///< their descriptions, without the folder
    std::vector<mode_t> modes;             ///< permissions of the files
    std::map<std::string, Bytes> contents; ///< of all files afterwards
    Names changed;                         ///< those whose permissions or attributes are not what they were
    Names calls;
};

Outcome outcomeOf(const Way& way, const Fault& fault)
{
    const TemporaryFolder folder;
    std::map<std::string, std::string> attributes;
    for (const std::string& name : way.files) {
        setAttributes(folder.file(name, way.before));
        attributes[name] = attributesOf(folder.path(name));
    }
    Outcome outcome;
    RecordingReporter reporter;
    {
        const FaultyCalls faulty(fault);
        const int raised = errorNumberOf([&] { way.save(folder, reporter); });
        if (raised != 0 && reporter.numbers.empty())
            reporter.report(folder.path(way.files.front()), {raised, ""});
        outcome.calls = FaultyCalls::log();
    }
    outcome.numbers = reporter.numbers;
    const auto withoutFolder = [&](std::string text) {
        for (auto at = text.find(folder.path("")); at != std::string::npos; at = text.find(folder.path("")))
            text.erase(at, folder.path("").size());
        return text;
    };
    std::ranges::transform(reporter.contexts, std::back_inserter(outcome.contexts), withoutFolder);
    std::ranges::transform(reporter.reasons, std::back_inserter(outcome.reasons), withoutFolder);
    outcome.failed = way.files.size() == 1 && !reporter.numbers.empty() ? way.files : outcome.contexts;
    for (const std::string& name : folder.names())
        outcome.contents[name] = contentOf(folder.path(name));
    for (const auto& [name, before] : attributes) {
        if (attributesOf(folder.path(name)) != before)
            outcome.changed.push_back(name);
        struct stat status = {};
        stat(folder.path(name).c_str(), &status);
        outcome.modes.push_back(status.st_mode & 0777);
    }
    return outcome;
}

Names namesOf(const Outcome& outcome)
{
    Names names;
    for (const auto& [name, content] : outcome.contents)
        names.push_back(name);
    return names;
}

/// The names of the photographs that a scan finds.
Names found(const TemporaryFolder& folder)
{
    std::vector<std::string> files;
    CountingProgress progress;
    RecordingReporter reporter;
    ScanOptions options;
    options.folder = folder.path("");
    FolderScan(options).run(files, progress, reporter);
    std::ranges::transform(files, files.begin(), [](const std::string& file) { return fs::path(file).filename(); });
    return files;
}

/// The file that a call is about, or whose new version it is about.
std::string fileOf(const std::string& call)
{
    const std::string name = call.substr(call.rfind(' ') + 1);
    if (name == "link")
        return "a.txt";
    return name.starts_with('~') ? name.substr(1) : name;
}

std::string renameOf(const std::string& file)
{
    return "rename ~" + file + " " + file;
}

/// write < fsync < rename < fsync of the folder, where the new version of `file` was put in place.
void expectOrder(const Names& calls, const std::string& file)
{
    const auto renamed = std::ranges::find(calls, renameOf(file));
    if (renamed == calls.end())
        return;
    const auto written = std::find(std::reverse_iterator(renamed), calls.rend(), "write ~" + file).base();
    EXPECT_TRUE(std::any_of(written, renamed,
                            [&](const std::string& call) {
                                const bool isGroupSync =
                                    call.starts_with("syncfs ") && call.ends_with(".jpg"); // without an error number
                                return isGroupSync || call == "fsync ~" + file;
                            }))
        << file << " was put in place before the disk had it";
    EXPECT_TRUE(std::any_of(renamed, calls.end(),
                            [](const std::string& call) {
                                return startsWithOneOf(call, {"fsync .", "open . "});
                            }))
        << "nothing was done for the folder after " << file;
}

bool isAboutFolder(const std::string& call)
{
    return startsWithOneOf(call, {"open .", "fsync ."});
}

/// Each file is the whole old one and was reported, or the whole new one and was not, unless only the folder was not
/// brought to disk. Of other files, only `leftovers` may be there.
void expectWhole(const Way& way, const Outcome& outcome, const Outcome& clean, const Names& leftovers,
                 const std::string& faultyCall = {})
{
    for (const std::string& file : way.files) {
        const bool isOld = contains(outcome.failed, file) && !isAboutFolder(faultyCall);
        const Bytes& expected = isOld ? way.before : clean.contents.at(file);
        EXPECT_TRUE(outcome.contents.at(file) == expected) << file;
        expectOrder(outcome.calls, file);
    }
    for (const auto& [name, content] : outcome.contents) {
        const bool wasThere = content == kLeftover && !faultyCall.empty();
        EXPECT_TRUE(contains(way.files, name) || contains(leftovers, name) || wasThere) << name << " was left over";
    }
}

/// What an error of the device in `call` does: it fails the file that the call is about, all of its folder, or nothing.
void expectOneFailure(const Way& way, const std::string& call, const Outcome& outcome)
{
    const bool isDispensable = startsWithOneOf(call, {"syncfs", "fchown", "fsetxattr", "flock"});
    const bool mayFail = startsWithOneOf(call, {"open ~", "fstat", "lstat", "unlink"}) ||
                         (way.findsLeftover && call.starts_with("pread ~"));
    if (isDispensable || (mayFail && outcome.failed.empty())) {
        EXPECT_EQ(outcome.failed, Names());
        return;
    }
    EXPECT_EQ(outcome.failed, isAboutFolder(call) ? way.files : Names{fileOf(call)});
    if (startsWithOneOf(call, {"pread", "create", "write", "fsync", "rename"})) {
        EXPECT_EQ(outcome.numbers.empty() ? 0 : outcome.numbers.front(), kDeviceError);
    }
}

} // namespace

TEST(Saving, SurvivesAFaultInEachOfItsCalls)
{
    for (const Way& way : {singleSave(), keepingSave(), batchOf(5), textFile()}) {
        const Outcome clean = outcomeOf(way, {});
        std::map<std::string, int> times;
        for (const std::string& call : clean.calls) {
            const Fault fault{call, ++times[call], EIO};
            SCOPED_TRACE(way.name + ": " + call + ", time " + std::to_string(fault.time));
            const Outcome outcome = outcomeOf(way, fault);
            expectOneFailure(way, call, outcome);
            const bool mayLeave = startsWithOneOf(call, {"open ~", "flock", "rename", "unlink", "fstat", "lstat"});
            expectWhole(way, outcome, clean,
                        mayLeave ? Names{"~" + fileOf(call), "~" + fileOf(call) + ".ovisto"} : Names(), call);
            if (!startsWithOneOf(call, {"fchown", "fsetxattr"})) {
                EXPECT_EQ(outcome.changed, Names()) << "in their permissions or attributes";
            }
        }
    }
}

TEST(Saving, TakesUpAgainWhatWasInterruptedOrCutShort)
{
    for (const Way& way : {singleSave(), batchOf(5), textFile()}) {
        const Outcome clean = outcomeOf(way, {});
        for (const Fault& fault : {Fault{}, Fault{kAnyCall, 0, EINTR}, Fault{kAnyCall, 0, kHalf}}) {
            SCOPED_TRACE(way.name + " " + std::to_string(fault.error));
            const Outcome outcome = outcomeOf(way, fault);
            EXPECT_EQ(outcome.failed, Names());
            EXPECT_EQ(outcome.changed, Names());
            expectWhole(way, outcome, clean, {});
        }
    }
}

TEST(Saving, SaysWhichStepFailed)
{
    const struct {
        Fault fault;
        int number;
        Names contexts;
    } cases[] = {
        {{"open a.jpg", 2, ENOENT}, kFileNotFound, {"a.jpg"}},
        {{"create ~a.jpg", 1, ENOSPC}, kDiskFull, {"~a.jpg"}},
        {{"create ~a.jpg", 1, EMFILE}, kPathAccessError, {"~a.jpg"}},
        {{"write ~a.jpg", 1, ENOSPC}, kDiskFull, {"Temp file write failed", "~a.jpg write failed"}},
        {{"write ~a.jpg", 2, EDQUOT}, kDiskFull, {"~a.jpg transfer of image from existing file failed"}},
        {{"write ~a.jpg", 3, kNothing}, kDiskFull, {"~a.jpg write failed"}},
        {{"fchmod ~a.jpg", 1, EPERM}, kPermissionDenied, {"~a.jpg write failed"}},
        {{"fsync ~a.jpg", 1, EFBIG}, kDiskFull, {"~a.jpg write failed"}},
        {{"lstat ~a.jpg", 3, ENOENT}, kPathAccessError, {"Rename file ~a.jpg to a.jpg"}}, // it is somebody else's
        {{"rename ~a.jpg a.jpg", 1, EIO}, kDeviceError, {"Rename file ~a.jpg to a.jpg"}},
        {{"rename ~a.jpg a.jpg", 1, EACCES}, kPermissionDenied, {"Delete old file a.jpg"}},
    };
    Way way = singleSave();
    const Bytes newVersion = outcomeOf(way, {}).contents["a.jpg"];
    for (const auto& c : cases) {
        SCOPED_TRACE(c.fault.call + " " + std::to_string(c.fault.time));
        Outcome outcome = outcomeOf(way, c.fault);
        EXPECT_EQ(outcome.contexts, c.contexts);
        EXPECT_EQ(outcome.numbers, std::vector<int>(c.contexts.size(), c.number));
        const bool isWhole = startsWithOneOf(c.fault.call, {"rename", "lstat"});
        const bool isUntouched = c.fault.call.starts_with("open");
        EXPECT_TRUE(!outcome.contents.contains("~a.jpg") || isWhole || isUntouched) << "an incomplete one goes";
        EXPECT_TRUE(outcome.contents["~a.jpg"] == newVersion || !isWhole) << "a whole new version is kept";
    }

    way.save = [save = way.save](const TemporaryFolder& folder, ErrorReporter& reporter) {
        fs::permissions(folder.path("a.jpg"), fs::perms::owner_read);
        save(folder, reporter);
    };
    Outcome readOnly = outcomeOf(way, {});
    EXPECT_EQ(readOnly.contexts, Names{"Delete old file a.jpg"});
    EXPECT_EQ(readOnly.reasons, Names{"Permission denied. The new version is in ~a.jpg"});
    EXPECT_TRUE(readOnly.contents["a.jpg"] == way.before);
    EXPECT_TRUE(readOnly.contents["~a.jpg"] == newVersion);
}

TEST(Saving, KeepsAnOriginalOnlyOfAFileThatWasReplaced)
{
    Way way = losingSave();
    EXPECT_TRUE(outcomeOf(way, {}).contents["a.jpg.original"] == way.before);
    for (const std::string call : {"fsync .", "rename ~a.jpg a.jpg"}) {
        const Outcome outcome = outcomeOf(way, {call, 1, EIO});
        EXPECT_FALSE(outcome.contents.contains("a.jpg.original")) << call;
        EXPECT_TRUE(outcome.contents.at("a.jpg") == way.before) << call;
    }
    way.save = [save = way.save](const TemporaryFolder& folder, ErrorReporter& reporter) {
        fs::permissions(folder.path("a.jpg"), fs::perms::owner_read);
        save(folder, reporter);
    };
    EXPECT_EQ(namesOf(outcomeOf(way, {})), (Names{"a.jpg", "~a.jpg"}));
}

TEST(Saving, GivesNoOtherGroupWhatTheGroupOfTheFileMayDo)
{
    const Way way = keepingSave();
    Fault fault{"fchown ~a.jpg", 0, EPERM};
    const Outcome outcome = outcomeOf(way, fault);
    EXPECT_EQ(outcome.failed, Names());
    if (geteuid() == 0) { // the group of a file of one's own is kept anyway
        EXPECT_EQ(outcome.modes, std::vector<mode_t>{0600});
    }
}

TEST(Saving, DeletesOnlyWhatIsKnownToBeALeftover)
{
    const Bytes photograph = JpegBytes().app0().end(Bytes(100, 0x33));
    const Bytes trailer(50, 0x44);
    const Bytes other = JpegBytes().app0().end(Bytes(101, 0x33));
    const auto cut = [](Bytes whole, std::size_t size) {
        whole.resize(size);
        return whole;
    };
    const struct {
        const char* name;
        Bytes photograph;
        Bytes content; ///< of ~a.jpg
        bool isLeftover;
    } cases[] = {
        {"nothing", photograph, {}, true},
        {"no JPEG file", photograph, bytes("\x89PNG"), false},
        {"the first byte", photograph, {0xFF}, true},
        {"cut before the image", photograph, cut(photograph, 10), true},
        {"cut in the image", photograph, cut(photograph, photograph.size() - 10), true},
        {"cut after the image", photograph + trailer, cut(photograph + trailer, photograph.size() + 10), true},
        {"the same image", photograph, JpegBytes().end(Bytes(100, 0x33)), true},
        {"the same image and no end", photograph + trailer, JpegBytes().end(Bytes(100, 0x33)) + trailer, true},
        {"the same image without what follows", photograph + trailer, photograph, false},
        {"another image", photograph, other, false},
        {"another image of the same length", photograph, JpegBytes().app0().end(Bytes(100, 0x34)), false},
        {"another image, and what follows", photograph, other + trailer, false},
        {"segments that the program cannot read", photograph, Bytes{0xFF, 0xD8, 0, 0, 0xFF, 0xD9}, false},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const TemporaryFolder folder;
        const std::string path = folder.file("a.jpg", c.photograph);
        const std::string second = folder.file("~a.jpg", c.content);
        EXPECT_EQ(found(folder), c.isLeftover ? Names{"a.jpg"} : Names({"a.jpg", "~a.jpg"}));
        EXPECT_EQ(runCommand({OVISTO_CLI, "set", kTitle, "New", path}).status, 0);
        EXPECT_EQ(loadDocument(path).selectSingleNode(kTitle).text(), "New");
        EXPECT_EQ(folder.names(), c.isLeftover ? Names{"a.jpg"} : Names({"a.jpg", "~a.jpg"}));
        EXPECT_TRUE(c.isLeftover || contentOf(second) == c.content);
    }
}

TEST(Saving, DeletesNoLeftoverThatAnotherSaveMayBeWriting)
{
    const Way way = singleSave();
    for (const Fault& fault : {Fault{"flock ~a.jpg", 0, EOPNOTSUPP}, Fault{"flock ~a.jpg", 0, ENOLCK},
                               Fault{"open ~a.jpg", 0, EACCES}, Fault{"unlink ~a.jpg", 0, EPERM}}) {
        SCOPED_TRACE(fault.call + " " + std::to_string(fault.error));
        Outcome outcome = outcomeOf(way, fault);
        EXPECT_EQ(outcome.failed, Names());
        EXPECT_EQ(outcome.contents["~a.jpg"], kLeftover);
        EXPECT_TRUE(outcome.contents["a.jpg"] != way.before);
        EXPECT_EQ(namesOf(outcome), (Names{"a.jpg", "~a.jpg"}));
    }
    const Outcome locked = outcomeOf(way, {"flock ~a.jpg", 1, EWOULDBLOCK});
    EXPECT_EQ(locked.numbers, std::vector<int>{kPermissionDenied});
    EXPECT_EQ(locked.contexts, Names{"~a.jpg"});
    EXPECT_TRUE(locked.contents.at("a.jpg") == way.before && locked.contents.at("~a.jpg") == kLeftover);
}

TEST(Saving, SaysThatAFileMayNotBeOnDisk)
{
    for (const Way& way : {keepingSave(), batchOf(2)}) {
        for (const int error : {EIO, EINVAL}) {
            const Outcome outcome = outcomeOf(way, {"fsync .", 1, error});
            const std::string reason = "It is saved, but not known to be on disk. Device I/O error";
            EXPECT_EQ(outcome.reasons, error == EIO ? Names(way.files.size(), reason) : Names());
        }
    }
}

TEST(Saving, SyncsEachFileOfAGroupWhereTheGroupCouldNotBe)
{
    const Way way = batchOf(9);
    const Outcome clean = outcomeOf(way, {});
    expectWhole(way, clean, clean, {});
    EXPECT_FALSE(std::ranges::any_of(clean.calls, [](const auto& call) { return call.starts_with("fsync ~"); }));
    const auto statusAsked =
        static_cast<int>(std::ranges::count(clean.calls, "fstat ~100.jpg")) - 1; // for the group, before its name
    for (const Fault& fault : {Fault{"syncfs ~100.jpg", 1, EIO}, Fault{"fstat ~100.jpg", statusAsked, EIO}}) {
        const Outcome outcome = outcomeOf(way, fault);
        EXPECT_EQ(outcome.failed, Names());
        expectWhole(way, outcome, clean, {});
    }
}

TEST(Saving, MakesRoomOnAFullDiskBeforeAFileFails)
{
    const Way way = batchOf(5);
    const Outcome clean = outcomeOf(way, {});
    const Outcome once = outcomeOf(way, {"write ~102.jpg", 1, ENOSPC});
    EXPECT_EQ(once.failed, Names());
    expectWhole(way, once, clean, {});
    const auto retried = std::find(once.calls.rbegin(), once.calls.rend(), "create ~102.jpg").base();
    for (const std::string file : {"100.jpg", "101.jpg"}) {
        const auto renamed = std::ranges::find(once.calls, renameOf(file));
        EXPECT_TRUE(renamed < retried) << file << " is still in the way";
    }

    const Outcome always = outcomeOf(way, {"write ~102.jpg", 0, ENOSPC});
    EXPECT_EQ(always.failed, Names{"102.jpg"});
    EXPECT_EQ(always.numbers, std::vector<int>{kDiskFull});
    expectWhole(way, always, clean, {});
}

namespace {

/// What another program makes of a photograph, which has `theirs` instead of `way.before` then.
struct OtherProgram {
    const char* name;
    void (*act)(const std::string& path, const Bytes& theirs);
    bool isInPlace = false;
    bool isDeletion = false;
};

void writeInPlace(const std::string& path, const Bytes& theirs)
{
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(theirs.data()), static_cast<std::streamsize>(theirs.size()));
}

/// As programs do that are asked to keep the date.
void writeInPlaceWithItsOldDate(const std::string& path, const Bytes& theirs)
{
    const auto date = fs::last_write_time(path);
    writeInPlace(path, theirs);
    fs::last_write_time(path, date);
}

void replaceByRename(const std::string& path, const Bytes& theirs)
{
    writeInPlace(path + ".new", theirs);
    fs::rename(path + ".new", path);
}

void cutShort(const std::string& path, const Bytes& /*theirs*/)
{
    fs::resize_file(path, fs::file_size(path) / 2);
}

void deleteFile(const std::string& path, const Bytes& /*theirs*/)
{
    fs::remove(path);
}

constexpr OtherProgram kOtherPrograms[] = {{"written in place", writeInPlace, true},
                                           {"written in place, old date", writeInPlaceWithItsOldDate, true},
                                           {"replaced", replaceByRename},
                                           {"cut short", cutShort, true},
                                           {"deleted", deleteFile, false, true}};

/// The outcome of a save during which another program acts on the file just before the call.
Outcome outcomeOfRace(Way way, const Fault& call, const OtherProgram& other, const std::string& file,
                      const Bytes& theirs)
{
    std::string path;
    way.save = [&, save = way.save](const TemporaryFolder& folder, ErrorReporter& reporter) {
        path = folder.path(file);
        save(folder, reporter);
    };
    Fault fault = call;
    fault.meanwhile = [&] { other.act(path, theirs); };
    return outcomeOf(way, fault);
}

} // namespace

TEST(Saving, NeverOverwritesWhatAnotherProgramMadeOfAFile)
{
    Way rebuilding = keepingSave();
    rebuilding.name = "rebuilding";
    rebuilding.save = [](const TemporaryFolder& folder, ErrorReporter& reporter) {
        saveChanged(folder.path("a.jpg"), WritingWay::Rebuild, reporter);
    };
    for (Way way : {keepingSave(), rebuilding, batchOf(2)}) {
        if (way.files.size() == 1)
            way.before = fullPhotograph(true); // smaller
        const std::string& file = way.files.front();
        Bytes theirs = way.before;
        theirs[way.before.size() - 3] ^= 0xFF; // in the picture
        const Names calls = outcomeOf(way, {}).calls;
        std::map<std::string, int> times{{calls[0], 1}, {calls[1], 1}};
        // What comes after the last look at the name is too late to be seen, and what is written within the same tick
        // of the clock after the last look at the content.
        const auto renamed = std::make_reverse_iterator(std::ranges::find(calls, renameOf(file)));
        const auto lastOpen = std::find(renamed, calls.rend(), "open " + file).base();
        const auto lastRead = std::find(renamed, calls.rend(), "pread " + file).base();
        for (auto call = calls.begin() + 2; call != lastOpen; ++call) { // from the first look at the file on
            const int time = ++times[*call];
            if (*call == *(call - 1))
                continue; // one of a run is enough
            for (const OtherProgram& other : kOtherPrograms) {
                if (other.isInPlace && call >= lastRead)
                    continue;
                const Fault fault{*call, time, 0, {}};
                SCOPED_TRACE(way.name + ": " + other.name + " before " + *call + ", " + std::to_string(fault.time));
                Outcome outcome = outcomeOfRace(way, fault, other, file, theirs);
                Names left;
                for (const auto& [name, content] : outcome.contents)
                    left.push_back(name);
                if (!contains(outcome.failed, file)) // then theirs was read, and may be kept so
                    std::erase(left, file + ".original");
                Names expected = way.files;
                if (other.isDeletion)
                    std::erase(expected, file);
                EXPECT_EQ(left, expected) << "litter, or a file that nobody wants";
                if (other.isDeletion)
                    EXPECT_EQ(outcome.failed, Names{file});
                else if (contains(outcome.failed, file))
                    EXPECT_TRUE(outcome.contents[file] != way.before) << "theirs is gone";
                else // theirs was read
                    EXPECT_TRUE(imageData(outcome.contents[file]) == imageData(theirs)) << "theirs is gone";
            }
        }
    }
}

TEST(Saving, GoesOnFromWhatAnotherProgramMadeOfAFileWhereThatIsWanted)
{
    Way way = batchOf(2);
    const std::string file = way.files.front();
    const Bytes theirs = JpegBytes().app0().segment(0xFFE2, {1, 2, 3}).end();
    way.save = [&way](const TemporaryFolder& folder, ErrorReporter& reporter) {
        const NodeChange change{NodeAction::Set, dictionary().entry(kTitle), "New"};
        const Names paths = {folder.path(way.files[0]), folder.path(way.files[1])};
        CountingProgress progress;
        BatchAction(paths, change, {.onOtherChange = OnOtherChange::ChangeAgain}).run(progress, reporter);
    };
    const struct {
        int time; ///< 0: again and again
        Names failed;
    } cases[] = {{1, {}}, {0, {file}}};
    for (const auto& c : cases) {
        Outcome outcome = outcomeOfRace(way, {"fsync ~" + file, c.time, 0, {}}, kOtherPrograms[0], file, theirs);
        EXPECT_EQ(outcome.failed, c.failed);
        EXPECT_EQ(outcome.contents.size(), way.files.size());
        EXPECT_EQ(outcome.contents[file] == theirs, !c.failed.empty());
        const Bytes segment = {0xFF, 0xE2, 0, 5, 1, 2, 3};
        const Bytes& saved = outcome.contents[file];
        EXPECT_NE(std::search(saved.begin(), saved.end(), segment.begin(), segment.end()), saved.end());
    }
}

} // namespace ovisto::test
