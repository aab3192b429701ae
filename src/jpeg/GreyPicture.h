// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

namespace ovisto {

/// A picture in shades of grey, reduced while it was decoded.
struct GreyPicture {
    std::size_t width = 0;
    std::size_t height = 0;
    std::vector<std::uint8_t> pixels{}; ///< row by row
};

/// The bytes of a JPEG file.
struct JpegSource {
    /// Fills `into` with the bytes from `offset` on, and returns how many there were.
    std::function<std::size_t(std::int64_t offset, std::span<std::uint8_t> into)> read;
    std::int64_t size = 0;
};

/// Decodes a JPEG file as small as it can without losing more detail than a thumbnail has: up to an eighth of its
/// width and height. None where it cannot be decoded whole, or would take far more time or memory than its size lets
/// expect.
std::optional<GreyPicture> greyPicture(const JpegSource& source);

} // namespace ovisto
