// SPDX-License-Identifier: MIT

#pragma once

#include <compare>
#include <cstdint>

namespace ovisto {

/// Position of a byte in a file; the first byte is 1.
struct FilePos {
    std::int64_t value = 1;
    auto operator<=>(const FilePos&) const = default;
};

/// Bytes from the start of the TIFF header; the header's first byte is 0.
struct TiffOffset {
    std::int64_t value = 0;
    auto operator<=>(const TiffOffset&) const = default;
};

constexpr FilePos operator+(FilePos position, std::int64_t bytes)
{
    return {position.value + bytes};
}

/// The position of `offset` in a file whose TIFF header is at `base`.
constexpr FilePos filePos(FilePos base, TiffOffset offset)
{
    return base + offset.value;
}

} // namespace ovisto
