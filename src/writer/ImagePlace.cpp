#include "writer/ImagePlace.h"

#include <array>

namespace ovisto {

namespace {

constexpr int kFirstMarker = 0xFF01;
constexpr int kStartOfScan = 0xFFDA;

} // namespace

std::optional<ImagePlace> imagePlace(const InputFile& file)
{
    std::int64_t position = 2; // behind the start-of-image marker; the first byte is 0
    for (;;) {
        std::array<std::uint8_t, 4> start{};
        file.readAt(position, start);
        const int marker = 256 * start[0] + start[1];
        if (marker < kFirstMarker || position >= file.size())
            return std::nullopt;
        position += 2 + 256 * start[2] + start[3];
        if (marker == kStartOfScan)
            return ImagePlace{position + 1, file.size() - (position + 1) - 2};
    }
}

} // namespace ovisto
