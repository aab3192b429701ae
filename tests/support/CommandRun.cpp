// SPDX-License-Identifier: MIT

#include "support/CommandRun.h"

#include "support/JpegBytes.h"

#include <cstdlib>

#include <sys/wait.h>

namespace ovisto::test {

namespace {

std::string quoted(const std::string& argument)
{
    std::string text = "'";
    for (const char character : argument)
        text += character == '\'' ? std::string("'\\''") : std::string(1, character);
    return text + "'";
}

std::string textOf(const std::string& path)
{
    const Bytes content = contentOf(path);
    return {content.begin(), content.end()};
}

} // namespace

CommandRun runCommand(const std::vector<std::string>& arguments, const std::string& input)
{
    const TemporaryFolder folder;
    std::string line;
    for (const std::string& argument : arguments)
        line += quoted(argument) + " ";
    line +=
        "<" + quoted(folder.file("in", input)) + " >" + quoted(folder.path("out")) + " 2>" + quoted(folder.path("err"));
    const int status = std::system(line.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, textOf(folder.path("out")), textOf(folder.path("err"))};
}

bool isInstalled(const std::string& program)
{
    return runCommand({"sh", "-c", "command -v " + program}).status == 0;
}

} // namespace ovisto::test
