// SPDX-License-Identifier: MIT

#include "cli/FailedList.h"

#include "common/system/File.h"
#include "common/system/Interruption.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace ovisto {

namespace {

bool isAmbiguous(const std::string& name)
{
    return name.find('\n') != std::string::npos || name.ends_with('\r') || name.starts_with(kByteOrderMark);
}

} // namespace

void refusePhotograph(const std::string& path, const char* refusal)
{
    std::array<std::uint8_t, 2> start{};
    ErrorTrap trap;
    trap.run([&] { InputFile(path).readAt(0, start); });
    if (start == std::array<std::uint8_t, 2>{0xFF, 0xD8})
        throw Error{kInvalidCall, {Message::InContext, path, refusal}};
}

FailedList::FailedList(const FileOptions& options)
    : m_path(options.failedTo), m_separator(options.zeroSeparated ? '\0' : '\n')
{
    if (m_path.empty())
        return;
    refusePhotograph(m_path, "A photograph is not replaced by a list");
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
            {Message::InContext, m_path, "The name of a file has a line break, which the list can have with -0"}};
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
