// SPDX-License-Identifier: MIT

#include "cli/FailedList.h"

#include "common/system/File.h"
#include "common/system/Interruption.h"
#include "common/system/Process.h"

#include <algorithm>
#include <cstdint>
#include <string_view>

namespace ovisto {

namespace {

bool isAmbiguous(const std::string& name)
{
    return name.find('\n') != std::string::npos || name.ends_with('\r') || name.starts_with(kByteOrderMark);
}

/// The first bytes of the file at `path`; empty where none can be read.
std::string startOf(const std::string& path)
{
    constexpr std::size_t kMost = 4096;
    std::string start(kMost, '\0');
    std::size_t length = 0;
    ErrorTrap trap;
    trap.run([&] { length = InputFile(path).readAt(0, {reinterpret_cast<std::uint8_t*>(start.data()), kMost}); });
    start.resize(length);
    return start;
}

/// Whether a file that begins so is an older list, and not something that the command reads: a style sheet, a document,
/// a picture of another kind or one that is damaged.
bool mayBeList(const std::string& start)
{
    constexpr std::string_view kBetweenNames("\0\n\r", 3);
    const auto isBinary = [kBetweenNames](char character) {
        return character >= 0 && character < ' ' && kBetweenNames.find(character) == std::string_view::npos;
    };
    return !start.starts_with('<') && std::ranges::none_of(start, isBinary);
}

} // namespace

void refuseTarget(const std::string& path, const char* refusal)
{
    const std::string start = startOf(path);
    if (start.starts_with("\xFF\xD8"))
        throw Error{kInvalidCall, {Message::InContext, path, refusal}};
    if (isStandardOutput(path))
        throw Error{kInvalidCall, {Message::InContext, path, "What this command prints goes there already"}};
}

FailedList::FailedList(const FileOptions& options)
    : m_path(options.failedTo), m_separator(options.zeroSeparated ? '\0' : '\n')
{
    if (m_path.empty())
        return;
    refuseTarget(m_path, "A photograph is not replaced by a list");
    if (!mayBeList(startOf(m_path)))
        throw Error{kInvalidCall, {Message::InContext, m_path, "Not replaced, as it is not a list of file names"}};
    deferInterruption();
    ErrorTrap trap;
    trap.run([&] { m_file.emplace(m_path); });
    if (trap.pending())
        throw Error{trap.error().number, {Message::InContext, m_path, trap.error().description}};
}

void FailedList::checkNames(const std::vector<std::string>& files) const
{
    if (m_file && m_separator == '\n' && std::ranges::any_of(files, isAmbiguous))
        throw Error{
            kInvalidCall,
            {Message::InContext, m_path,
             "The name of a file has a line break or begins with a byte order mark, which the list can have with -0"}};
}

int FailedList::finish(CommandOutput& output, const std::vector<std::string>& undone,
                       const std::vector<std::string>& files)
{
    const std::vector<std::string>& listed = output.flush() ? undone : files;
    if (m_file)
        attempt(output, m_path, [&] {
            checkNames(listed);
            std::string text;
            for (const std::string& name : listed)
                text += name + m_separator;
            m_file->write(text);
        });
    return output.finish();
}

} // namespace ovisto
