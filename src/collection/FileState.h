#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

namespace ovisto {

/// What tells whether a JPEG file is still the one that its document was read from: its size, and a digest of all bytes
/// before the image data.
struct FileState {
    std::int64_t size = 0;
    std::size_t digest = 0;

    bool operator==(const FileState&) const = default;
};

/// The state of the file at `path`. Raises the error that keeps it from being read as far as its image data.
FileState fileState(const std::string& path);

} // namespace ovisto
