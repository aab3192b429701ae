// SPDX-License-Identifier: MIT

#pragma once

#include "common/system/File.h"

#include <string>

namespace ovisto {

/// A new file in the folder for temporary files, for the program itself only; deleted with the object. The first one in
/// a process deletes those that a killed process left.
class TemporaryFile {
public:
    TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    OutputFile& file() { return m_file; }
    const std::string& path() const { return m_file.path(); }

private:
    OutputFile m_file;
};

} // namespace ovisto
