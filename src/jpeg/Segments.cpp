// SPDX-License-Identifier: MIT

#include "jpeg/Segments.h"

#include "jpeg/Markers.h"

namespace ovisto {

SegmentsResult walkSegments(ByteReader& reader, const std::function<void(const Segment&)>& visit)
{
    FilePos position{3}; // after the start-of-image marker
    for (;;) {
        reader.littleEndian = false; // a visit to an Exif segment may have changed it
        const Segment segment{reader.ReadInteger(position), reader.ReadInteger(position + 2), position};
        if (segment.marker < kFirstMarker)
            return {SegmentsEnd::UnknownMarker, position, segment.marker};
        visit(segment);
        position = segment.end();
        if (segment.marker == kStartOfScan)
            return {SegmentsEnd::Scan, position, segment.marker};
        if (position.value > reader.fileSize())
            return {SegmentsEnd::EndOfFile, position};
    }
}

std::optional<ImagePlace> imagePlace(const InputFile& file)
{
    ByteReader reader(file);
    const SegmentsResult segments = walkSegments(reader, [](const Segment& /*segment*/) {});
    if (segments.end != SegmentsEnd::Scan)
        return std::nullopt;
    return imagePlaceFrom(segments.position, file.size());
}

} // namespace ovisto
