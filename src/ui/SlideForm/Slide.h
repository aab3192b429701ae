// SPDX-License-Identifier: MIT

#pragma once

#include "common/Error.h"
#include "document/Reading.h"
#include "ui/SlideForm/SlideDetails.h"

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

/// A file as a slide show presents it.
struct Slide {
    SlideDetails details;   ///< shown below the picture
    QImage picture;         ///< turned upright; null if the file cannot be shown
    bool endsEarly = false; ///< the file ends before its picture does
    QString failure;        ///< what the user reads in place of a picture
};

/// A slide to make: of a file as it is now, with its picture scaled down to a size in screen pixels.
struct SlideRequest {
    std::string path;
    QSize maximum;
    std::filesystem::file_time_type changed; ///< a file that has changed or been deleted since is another slide

    bool operator==(const SlideRequest&) const = default;
};

SlideRequest slideRequest(const std::string& path, QSize maximum);

/// When a decoder gives up.
struct DecodeLimits {
    std::int64_t mostBytes;             ///< of a picture in memory
    const std::atomic<bool>& abandoned; ///< true once nobody waits for the slide
};

/// What is shown instead of a slide that could not be made.
Slide failedSlide(const SlideRequest& request, const Error& error);

/// Makes a slide, its details read in this way. Nothing if it is abandoned in the meantime or its picture would take
/// more memory than allowed.
std::optional<Slide> decodeSlide(const SlideRequest& request, const QLocale& locale, Reading reading,
                                 const DecodeLimits& limits);

} // namespace ovisto
