// SPDX-License-Identifier: MIT

#include "writer/Leftover.h"

#include "jpeg/ByteReader.h"
#include "jpeg/Markers.h"
#include "jpeg/Segments.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace ovisto {

namespace {

constexpr std::int64_t kMarkerSize = 2;
constexpr std::int64_t kStretch = std::int64_t{64} * 1024;

using Marker = std::array<std::uint8_t, kMarkerSize>;
constexpr Marker kStart{0xFF, 0xD8};
constexpr Marker kEnd{0xFF, 0xD9};

bool hasAt(const InputFile& file, std::int64_t offset, const Marker& marker)
{
    Marker found{};
    return offset >= 0 && file.readAt(offset, found) == found.size() && found == marker;
}

bool endsWithEnd(const InputFile& file)
{
    return hasAt(file, file.size() - kMarkerSize, kEnd);
}

/// The place of the first byte after the scan header, counted from 0; nothing where the segments do not lead there.
std::optional<std::int64_t> imageStart(const InputFile& file)
{
    const auto place = imagePlace(file);
    return place ? std::optional(place->offset - 1) : std::nullopt;
}

/// Whether an end-of-image marker stands anywhere from `start` on. Image data has no such two bytes.
bool hasEnd(const InputFile& file, std::int64_t start)
{
    std::vector<std::uint8_t> bytes(kStretch);
    for (std::int64_t done = start; done < file.size(); done += kStretch - 1) { // a marker may stand across stretches
        bytes.resize(file.readAt(done, bytes));
        if (std::search(bytes.begin(), bytes.end(), kEnd.begin(), kEnd.end()) != bytes.end())
            return true;
        bytes.resize(kStretch);
    }
    return false;
}

/// Whether both files have the same `size` bytes from these places on.
bool haveSame(const InputFile& one, std::int64_t onePlace, const InputFile& other, std::int64_t otherPlace,
              std::int64_t size)
{
    std::vector<std::uint8_t> bytes;
    std::vector<std::uint8_t> otherBytes;
    for (std::int64_t done = 0; done < size; done += kStretch) {
        const auto count = static_cast<std::size_t>(std::min(kStretch, size - done));
        bytes.resize(count);
        otherBytes.resize(count);
        if (one.readAt(onePlace + done, bytes) != count || other.readAt(otherPlace + done, otherBytes) != count ||
            bytes != otherBytes)
            return false;
    }
    return true;
}

} // namespace

bool isIncomplete(const InputFile& file, const InputFile& photograph)
{
    if (file.size() < kMarkerSize)
        return true;
    if (!hasAt(file, 0, kStart)) // no save began it
        return false;
    const auto start = imageStart(file);
    if (!start) // what begins and ends as a JPEG file does may be one, though this program cannot read it
        return !endsWithEnd(file);
    if (endsWithEnd(file))
        return false;
    if (!hasEnd(file, *start))
        return true;
    const auto photographStart = imageStart(photograph);
    const std::int64_t size = file.size() - *start;
    return photographStart && size < photograph.size() - *photographStart &&
           haveSame(file, *start, photograph, *photographStart, size);
}

bool hasSameImage(const InputFile& file, const InputFile& photograph)
{
    const auto start = imageStart(file);
    const auto photographStart = imageStart(photograph);
    if (!start || !photographStart)
        return false;
    const std::int64_t size = file.size() - *start;
    if (size < kMarkerSize || size != photograph.size() - *photographStart)
        return false;
    return haveSame(file, *start, photograph, *photographStart, size - kMarkerSize) &&
           (endsWithEnd(file) ||
            haveSame(file, file.size() - kMarkerSize, photograph, photograph.size() - kMarkerSize, kMarkerSize));
}

} // namespace ovisto
