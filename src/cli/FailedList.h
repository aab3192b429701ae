// SPDX-License-Identifier: MIT

#pragma once

#include "cli/CommandOutput.h"
#include "cli/Options.h"
#include "common/system/NewTextFile.h"

#include <optional>
#include <string>
#include <vector>

namespace ovisto {

/// The list that --failed-to asks for: the files that a command did not do. It is written at the end, whole, or what
/// was there stays. Without the option, none of this happens.
class FailedList {
public:
    /// Opens the list, so that one that cannot be written is known before any file is; raises an error then. From now
    /// on a request to end the program is deferred, so that the list can be written.
    explicit FailedList(const FileOptions& options);

    /// Raises an error if one of `files`, which may fail, has a name that would be read back as another one.
    void checkNames(const std::vector<std::string>& files) const;

    /// Ends the output of the command and writes the list: the files `undone`, or all `files` if standard output, on
    /// which they depend, is lost. Returns the exit status.
    int finish(CommandOutput& output, const std::vector<std::string>& undone, const std::vector<std::string>& files);

    /// Leaves what was there.
    void giveUp() { m_file.reset(); }

    bool isWanted() const { return m_file.has_value(); }

private:
    std::string m_path;
    char m_separator;
    std::optional<NewTextFile> m_file;
};

/// Raises an error if a JPEG file is at `path`: the name of the file to write was forgotten, and the first of the
/// photographs taken for it. `refusal` says so. Raises one, too, if standard output or standard error goes to this
/// file, which would lose what is printed.
void refuseTarget(const std::string& path, const char* refusal);

} // namespace ovisto
