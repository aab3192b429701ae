#pragma once

#include <QImage>
#include <QLocale>
#include <QSize>
#include <QString>

#include <atomic>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace ovisto {

/// A file as a show presents it.
struct Slide {
    QString details; ///< the line beside the picture
    QImage picture;  ///< turned upright; none when the file cannot be shown
    QString failure; ///< why there is no picture, for people
};

/// A slide to make: of a file as it is now, its picture scaled down to a size in pixels of the screen.
struct SlideRequest {
    std::string path;
    QSize maximum;
    std::filesystem::file_time_type changed; ///< a file that was changed or deleted since makes another slide

    bool operator==(const SlideRequest&) const = default;
};

SlideRequest slideRequest(const std::string& path, QSize maximum);

/// How far a decoder goes.
struct DecodeLimits {
    std::int64_t mostBytes;             ///< of a picture in memory
    const std::atomic<bool>& abandoned; ///< true as soon as nobody waits for the slide any more
};

/// Makes a slide. Nothing when it was abandoned meanwhile, or its picture would take more memory than allowed.
std::optional<Slide> decodeSlide(const SlideRequest& request, const QLocale& locale, const DecodeLimits& limits);

} // namespace ovisto
