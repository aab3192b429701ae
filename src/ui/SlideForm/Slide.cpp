// SPDX-License-Identifier: MIT

#include "ui/SlideForm/Slide.h"

#include "common/Error.h"
#include "common/system/File.h"
#include "common/text/PathText.h"
#include "reader/JpegXml.h"
#include "ui/App/PictureFile.h"
#include "ui/App/PictureFit.h"
#include "ui/App/Text.h"
#include "ui/SlideForm/SlideDetails.h"

#include <QImageReader>

#include <system_error>

namespace ovisto {

namespace {

std::int64_t bytesInMemory(QSize size)
{
    constexpr std::int64_t kBytesPerPixel = 4;
    return kBytesPerPixel * size.width() * size.height();
}

SlideDetails readDetails(const std::string& path, const QLocale& locale, Reading reading)
{
    if (!fileExists(path))
        return {};
    // The size of the thumbnail stands in the directory that is kept for its sake.
    const KeepOptions keep{.pCodifyMakerNote = false, .pCodifyThumb = true, .pCodifyExif1 = false, .reading = reading};
    XmlDocument JpegDoc;
    JpegDoc.loadText(JpegXml().XMLtranslate(path, keep).text);
    return slideDetails(JpegDoc, locale);
}

/// Reads the picture of the request; none when it would take more memory than allowed.
void readPicture(const SlideRequest& request, const DecodeLimits& limits, Slide& slide)
{
    PictureFile file(request.path, &limits.abandoned);
    const QSize size = fittedSize(QImageReader(&file).size(), request.maximum);
    if (bytesInMemory(size) > limits.mostBytes)
        return;
    file.seek(0);
    slide.picture = fittedPicture(file, request.maximum);
    slide.endsEarly = file.wasReadPastEnd();
}

} // namespace

SlideRequest slideRequest(const std::string& path, QSize maximum)
{
    std::error_code missing;
    return {path, maximum, std::filesystem::last_write_time(path, missing)};
}

Slide failedSlide(const SlideRequest& request, const Error& error)
{
    Slide slide;
    slide.failure = shownPath(splitPath(request.path).name) + QLatin1Char('\n') + toQString(error.description);
    return slide;
}

std::optional<Slide> decodeSlide(const SlideRequest& request, const QLocale& locale, Reading reading,
                                 const DecodeLimits& limits)
{
    Slide slide;
    ErrorTrap trap;
    trap.run([&] { slide.details = readDetails(request.path, locale, reading); });
    trap.clear(); // then there are none to show
    trap.run([&] { readPicture(request, limits, slide); });
    const bool isTooLarge = slide.picture.isNull() && !trap.pending();
    if (limits.abandoned || isTooLarge)
        return std::nullopt;
    if (trap.pending())
        slide.failure = failedSlide(request, trap.take()).failure;
    return slide;
}

} // namespace ovisto
