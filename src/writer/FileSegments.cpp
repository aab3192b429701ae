// SPDX-License-Identifier: MIT

#include "writer/FileSegments.h"

#include "common/Error.h"
#include "jpeg/ByteReader.h"

#include <algorithm>

namespace ovisto {

std::vector<Segment> segmentsOf(const InputFile& file)
{
    ByteReader reader(file);
    std::vector<Segment> segments;
    const SegmentsResult result = walkSegments(reader, [&](const Segment& segment) { segments.push_back(segment); });
    if (result.end != SegmentsEnd::Scan)
        throw Error{kStructureError, Message::SegmentsLeadNowhere};
    return segments;
}

std::vector<std::uint8_t> segmentBytes(const InputFile& file, const Segment& segment)
{
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(segment.end().value - segment.position.value));
    bytes.resize(file.readAt(segment.position.value - 1, bytes));
    return bytes;
}

TiffBlock exifBlock(const std::vector<std::uint8_t>& segmentBytes)
{
    const auto prefix = std::min(static_cast<std::ptrdiff_t>(segmentBytes.size()), std::ptrdiff_t{kExifPrefixSize});
    return TiffBlock({segmentBytes.begin() + prefix, segmentBytes.end()});
}

} // namespace ovisto
