// SPDX-License-Identifier: MIT

// Commands that are asked to end while they work.

#include "collection/DocumentLoad.h"
#include "support/JpegBytes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <filesystem>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ovisto::test {

namespace {

constexpr const char* kTitle = "/JPEG/Exif[@id='FFE1']/IFD[@id='9C9B']";

/// A command that runs beside the test. It waits where its standard error is full until the test reads it.
class RunningCommand {
public:
    explicit RunningCommand(std::vector<std::string> arguments)
    {
        std::array<int, 2> pipeEnds{};
        EXPECT_EQ(pipe2(pipeEnds.data(), O_CLOEXEC), 0);
        m_process = fork();
        if (m_process == 0) {
            arguments.insert(arguments.begin(), OVISTO_CLI);
            std::vector<char*> words;
            std::ranges::transform(arguments, std::back_inserter(words), [](std::string& word) { return word.data(); });
            words.push_back(nullptr);
            dup2(pipeEnds[1], STDERR_FILENO);
            constexpr unsigned kGivenUp = 60;
            alarm(kGivenUp); // one that does not end fails the test, it does not stop it
            execv(OVISTO_CLI, words.data());
            _exit(99);
        }
        close(pipeEnds[1]);
        m_errors = pipeEnds[0];
    }
    RunningCommand(const RunningCommand&) = delete;
    RunningCommand& operator=(const RunningCommand&) = delete;
    ~RunningCommand() { close(m_errors); }

    /// Up to `most` bytes of its standard error, fewer only where it ends.
    std::string readErrors(std::size_t most)
    {
        std::string text(most, '\0');
        std::size_t size = 0;
        for (ssize_t count = 1; count > 0 && size < most; size += static_cast<std::size_t>(count))
            count = read(m_errors, text.data() + size, most - size);
        text.resize(size);
        return text;
    }

    void interrupt() const { kill(m_process, SIGTERM); }

    /// The signal that it ended by; 0 for none.
    int endSignal() const
    {
        int status = 0;
        waitpid(m_process, &status, 0);
        return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
    }

private:
    pid_t m_process = -1;
    int m_errors = -1;
};

std::string textOf(const std::string& path)
{
    const Bytes content = contentOf(path);
    return {content.begin(), content.end()};
}

constexpr std::size_t kMoreThanAPipeHolds = 200'000;

/// Interrupts a command in the middle of what it says on standard error. Returns what that was.
std::string interruptAtFirstError(const std::vector<std::string>& arguments)
{
    RunningCommand command(arguments);
    std::string errors = command.readErrors(1);
    command.interrupt();
    errors += command.readErrors(10'000'000);
    EXPECT_EQ(command.endSignal(), SIGTERM) << arguments.front();
    return errors;
}

} // namespace

TEST(Interruption, EndsCommandsThatWriteAfterTheFileAtHand)
{
    const TemporaryFolder lists;
    const Bytes before = fullPhotograph(false);
    const std::string style = std::string(OVISTO_DATA_FOLDER) + "reports/list.xsl";
    const struct {
        std::vector<std::string> arguments;
        std::vector<std::string> written;
    } cases[] = {
        {{"export"}, {"a.jpg.XML"}},
        {{"show"}, {}}, // which only waits for its list
        {{"write", "--rebuild"}, {"a.jpg"}},
        {{"report", "--style", style, "--output", lists.path("d.jpg")}, {}},
    };
    for (const auto& c : cases) {
        const TemporaryFolder folder;
        const auto file = [&](const char* name) { return folder.file(name, before) + '\n'; };
        const std::string noFile = folder.path(std::string(kMoreThanAPipeHolds, 'x')) + '\n';
        const std::string list = file("a.jpg") + noFile + file("b.jpg") + file("c.jpg") + file("d.jpg");
        std::vector<std::string> arguments = c.arguments;
        arguments.insert(arguments.end(), {"--jobs", "1", "--files-from", lists.file("list", list), "--failed-to",
                                           lists.path("undone")});
        // What it says of the first file may come when it has begun with the next one, which it finishes.
        const std::string errors = interruptAtFirstError(arguments);
        EXPECT_EQ(errors.find("c.jpg"), std::string::npos) << "went on after the file at hand";
        EXPECT_NE(errors.find("xx: Path/File access error\n"), std::string::npos) << "finished what it had begun";
        for (const std::string& name : c.written)
            EXPECT_NE(contentOf(folder.path(name)), before) << c.arguments.front();
        EXPECT_EQ(contentOf(folder.path("d.jpg")), before) << c.arguments.front();
        for (const std::string& name : folder.names())
            EXPECT_TRUE(name.ends_with(".jpg") || name.ends_with(".jpg.XML") || name.ends_with(".original")) << name;
        EXPECT_FALSE(std::filesystem::exists(folder.path("d.jpg.XML")));
        EXPECT_EQ(lists.names(), (std::vector<std::string>{"list", "undone"})) << "a report on some files is none";
        const std::string undone = textOf(lists.path("undone"));
        const std::string rest = folder.path("c.jpg") + '\n' + folder.path("d.jpg") + '\n';
        const bool isReport = c.arguments.front() == "report";
        EXPECT_NE(errors.find(isReport ? "so there is none\n" : "Interrupted after "), std::string::npos) << errors;
        if (isReport)
            EXPECT_EQ(undone, list);
        else
            EXPECT_TRUE(undone == noFile + rest || undone == noFile + folder.path("b.jpg") + '\n' + rest) << undone;
    }
}

TEST(Interruption, EndsAChangeOfManyFilesAfterThoseAtHand)
{
    constexpr int kFiles = 500;
    const TemporaryFolder folder;
    const Bytes before = JpegBytes().app0().end();
    std::string missing;
    std::string present;
    std::vector<std::string> files;
    for (int i = 0; i < kFiles; ++i) {
        const std::string name = std::to_string(1000 + i) + ".jpg";
        missing += folder.path(std::string(kMoreThanAPipeHolds / kFiles, 'x') + name) + '\n';
        files.push_back(folder.file(name, before));
        present += files.back() + '\n';
    }
    // One job fails with its half of the files and waits to say so, while the other one is at work.
    const std::string errors =
        interruptAtFirstError({"set", kTitle, "New", "--jobs", "2", "--files-from",
                               folder.file("list", missing + present), "--failed-to", folder.path("undone")});
    EXPECT_EQ(std::ranges::count(errors, '\n'), kFiles + 1);
    EXPECT_EQ(folder.names().size(), files.size() + 2) << "no temporary file is left";
    int changed = 0;
    for (const std::string& file : files) {
        if (contentOf(file) == before) {
            missing += file + '\n';
            continue;
        }
        EXPECT_EQ(loadDocument(file).selectSingleNode(kTitle).text(), "New");
        ++changed;
    }
    EXPECT_LT(changed, kFiles);
    EXPECT_EQ(textOf(folder.path("undone")), missing) << "what failed and what was not reached";
    const std::string counts = std::to_string(changed) + " changed, 500 failed\n";
    EXPECT_TRUE(errors.ends_with("ovisto-cli: Interrupted after " + std::to_string(kFiles + changed) +
                                 " of 1,000 files: " + counts))
        << errors.substr(errors.size() - 200) << counts;
}

TEST(Interruption, EndsAReportThatWaitsForItsStyleSheet)
{
    const TemporaryFolder folder;
    const std::string pipe = folder.path("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const RunningCommand command({"report", "--style", pipe, OVISTO_OWN_SAMPLES "no-exif.jpg"});
    const int writer = open(pipe.c_str(), O_WRONLY | O_CLOEXEC); // opens when the command does
    command.interrupt();
    EXPECT_EQ(command.endSignal(), SIGTERM);
    close(writer);
}

} // namespace ovisto::test
