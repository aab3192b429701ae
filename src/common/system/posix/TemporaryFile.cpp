// SPDX-License-Identifier: MIT

#include "common/system/TemporaryFile.h"

#include "common/system/FileListing.h"
#include "common/system/posix/SystemCalls.h"

#include <algorithm>
#include <cstdlib>
#include <mutex>
#include <random>
#include <string_view>

#include <sys/stat.h>
#include <unistd.h>

namespace ovisto {

namespace {

constexpr std::string_view kStart = "ovisto-";
constexpr std::string_view kEnd = ".tmp";
constexpr std::string_view kDigits = "0123456789abcdef";
constexpr std::size_t kRandomDigits = 16;

std::string temporaryFolder()
{
    const char* folder = std::getenv("TMPDIR");
    return folder != nullptr && *folder != '\0' ? folder : "/tmp";
}

std::string randomName()
{
    std::random_device random;
    std::uniform_int_distribution<std::size_t> digit(0, kDigits.size() - 1);
    std::string name(kStart);
    std::generate_n(std::back_inserter(name), kRandomDigits, [&] { return kDigits[digit(random)]; });
    return name.append(kEnd);
}

bool isOurName(std::string_view name)
{
    return name.size() == kStart.size() + kRandomDigits + kEnd.size() && name.starts_with(kStart) &&
           name.ends_with(kEnd) && name.find_first_not_of(kDigits, kStart.size()) == name.size() - kEnd.size();
}

bool isOurFile(const std::string& path, const InputFile& /*file*/)
{
    struct stat status = {};
    return systemCall(&SystemCalls::lstat, path.c_str(), &status) == 0 && status.st_uid == geteuid();
}

void deleteLeftovers(const std::string& folder)
{
    ErrorTrap trap; // a folder that cannot be read is nobody's concern here
    trap.run([&] {
        for (const std::string& name : listFolder(folder).files) {
            if (isOurName(name))
                OutputFile::deleteLeftover(pathIn(folder, name), isOurFile);
        }
    });
}

OutputFile createdFile()
{
    static std::once_flag wasCleared;
    const std::string folder = temporaryFolder();
    std::call_once(wasCleared, [&] { deleteLeftovers(folder); });
    return OutputFile::underFreeName([&](int /*number*/) { return pathIn(folder, randomName()); }, isOurFile);
}

} // namespace

TemporaryFile::TemporaryFile() : m_file(createdFile()) {}

TemporaryFile::~TemporaryFile()
{
    m_file.discard();
}

} // namespace ovisto
