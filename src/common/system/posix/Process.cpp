// SPDX-License-Identifier: MIT

#include "common/system/Process.h"

#include "common/system/posix/SystemError.h"

#include <algorithm>
#include <array>
#include <csignal>
#include <cstdlib>

#include <fcntl.h>
#include <pwd.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ovisto {

std::size_t openFilesAllowed(std::size_t wanted)
{
    rlimit limit{};
    if (getrlimit(RLIMIT_NOFILE, &limit) != 0)
        return wanted;
    rlimit raised = limit;
    raised.rlim_cur = std::min<rlim_t>(wanted, limit.rlim_max);
    if (raised.rlim_cur > limit.rlim_cur && setrlimit(RLIMIT_NOFILE, &raised) == 0)
        return raised.rlim_cur;
    return limit.rlim_cur;
}

void outliveFileSizeLimit()
{
    // Not SIG_IGN, which programs started from here would inherit.
    struct sigaction action = {};
    action.sa_handler = [](int) {};
    sigaction(SIGXFSZ, &action, nullptr);
}

void occupyStandardStreams()
{
    struct Stream {
        int number;
        int mode; // the other one, so that using the stream still fails
    };
    constexpr Stream kStreams[] = {{STDIN_FILENO, O_WRONLY}, {STDOUT_FILENO, O_RDONLY}, {STDERR_FILENO, O_RDONLY}};
    for (const Stream& stream : kStreams) {
        if (fcntl(stream.number, F_GETFD) == -1 && open("/dev/null", stream.mode) != stream.number)
            _exit(EXIT_FAILURE); // and nobody to be told
    }
}

bool isStandardOutput(const std::string& path)
{
    struct stat target = {};
    if (stat(path.c_str(), &target) != 0 || !S_ISREG(target.st_mode))
        return false;
    return std::ranges::any_of(std::array{STDOUT_FILENO, STDERR_FILENO}, [&](int number) {
        struct stat status = {};
        return fstat(number, &status) == 0 && status.st_dev == target.st_dev && status.st_ino == target.st_ino;
    });
}

bool isErrorOutputTerminal()
{
    return isatty(STDERR_FILENO) == 1;
}

std::string executablePath()
{
    std::array<char, 4096> path{};
    const auto length = checked(readlink("/proc/self/exe", path.data(), path.size()));
    return {path.data(), static_cast<std::size_t>(length)};
}

std::string userDataRoot()
{
    if (const char* root = std::getenv("XDG_DATA_HOME"); root != nullptr && *root == '/')
        return root;
    const char* home = std::getenv("HOME");
    if (home == nullptr || *home == '\0') {
        const passwd* user = getpwuid(getuid());
        home = user != nullptr ? user->pw_dir : "";
    }
    return std::string(home) + "/.local/share";
}

} // namespace ovisto
