#pragma once

#include <string>

namespace ovisto {

/// An empty file under a name that nobody else has; deleted with the object.
class TemporaryFile {
public:
    TemporaryFile();
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile();

    const std::string& path() const { return m_path; }

private:
    std::string m_path;
};

} // namespace ovisto
