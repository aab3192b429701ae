// SPDX-License-Identifier: MIT

#pragma once

#include "common/system/File.h"
#include "jpeg/Segments.h"
#include "writer/TiffBlock.h"

#include <cstdint>
#include <vector>

namespace ovisto {

// The segments of a file as they stand there, beside the elements of its document.

/// The segments of `file`, the scan header last. Raises kStructureError where they do not lead to one.
std::vector<Segment> segmentsOf(const InputFile& file);

/// The bytes of a segment, its marker included.
std::vector<std::uint8_t> segmentBytes(const InputFile& file, const Segment& segment);

/// Bytes of an Exif segment before its TIFF structure: marker, length, "Exif", and two bytes that are zeros.
inline constexpr std::int64_t kExifPrefixSize = 10;

/// The TIFF structure in the bytes of an Exif segment.
TiffBlock exifBlock(const std::vector<std::uint8_t>& segmentBytes);

} // namespace ovisto
