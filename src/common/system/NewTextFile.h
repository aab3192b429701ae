// SPDX-License-Identifier: MIT

#pragma once

#include "common/system/File.h"

#include <string>
#include <string_view>

namespace ovisto {

/// The new content of a text file, under a temporary name until it is whole: at every moment the path has its old or
/// its new content, never a part of it. Without write(), everything stays as it was.
class NewTextFile {
public:
    /// Opens the new file. Raises an error, and leaves nothing behind, where it could not take the place of `path`.
    explicit NewTextFile(const std::string& path);
    NewTextFile(const NewTextFile&) = delete;
    NewTextFile& operator=(const NewTextFile&) = delete;
    ~NewTextFile();

    /// Writes the whole content and puts it in place. Call once.
    void write(std::string_view content);

private:
    std::string m_target;
    OutputFile m_file;
    bool m_isInPlace = false;
};

} // namespace ovisto
