// SPDX-License-Identifier: MIT

#pragma once

#include "common/system/File.h"
#include "jpeg/ByteReader.h"
#include "jpeg/FilePosition.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace ovisto {

/// One segment of a JPEG file. It may reach past the end of the file.
struct Segment {
    std::uint16_t marker = 0;
    std::uint16_t length = 0; ///< the length field, which counts itself and the payload
    FilePos position;         ///< the first byte of the marker

    FilePos payload() const { return position + 4; }
    FilePos end() const { return position + 2 + length; } ///< where the next segment begins
};

enum class SegmentsEnd {
    Scan,          ///< the last segment is the start of scan; image data follows it
    UnknownMarker, ///< a number that is not a marker is where the next marker should be
    EndOfFile,     ///< the file ends before a start of scan
};

/// Why a walk over the segments ended, and where.
struct SegmentsResult {
    SegmentsEnd end;
    FilePos position;         ///< of what comes after the last segment
    std::uint16_t marker = 0; ///< the marker that ended it: the start of scan or the unknown one
};

/// Calls `visit` for each segment of a JPEG file, from the one after the start-of-image marker up to and including the
/// start of scan. Assumes that every marker has a length field. Raises what ByteReader and `visit` raise.
SegmentsResult walkSegments(ByteReader& reader, const std::function<void(const Segment&)>& visit);

/// Where the image data of a JPEG file is, as the document's IMG element says it.
struct ImagePlace {
    std::int64_t offset = 1; ///< of the first byte after the scan header; the first byte of the file is 1
    std::int64_t length = 0; ///< bytes of the file after that one, without the end-of-image marker
};

/// The image data that begins at `firstByte` in a file of `fileSize` bytes.
constexpr ImagePlace imagePlaceFrom(FilePos firstByte, std::int64_t fileSize)
{
    constexpr std::int64_t kEndOfImageSize = 2;
    return {firstByte.value, fileSize - firstByte.value - kEndOfImageSize};
}

/// Finds the image data by walking the segments; nothing if they do not lead to a scan. Raises kDeviceError.
std::optional<ImagePlace> imagePlace(const InputFile& file);

} // namespace ovisto
