#pragma once

#include "common/ErrorReport.h"

#include <QImage>
#include <QSize>

#include <string>

class QIODevice;

namespace ovisto {

inline constexpr int kInvalidPicture = 481; ///< what should be a picture cannot be shown as one

/// The picture in the file at `fileName`, decoded at the size at which it fits into `maximum` and turned as its Exif
/// orientation says. It is never enlarged. When that fails, `reporter` is told with the file name as context, and no
/// picture returned.
QImage PictureFit(const std::string& fileName, QSize maximum, ErrorReporter& reporter);

/// The same, raising kInvalidPicture, or what the system says, instead of telling it.
QImage fittedPicture(const std::string& fileName, QSize maximum);
QImage fittedPicture(QIODevice& file, QSize maximum);

/// `picture` turned and mirrored as an Exif orientation (1 to 8) says; as it is for any other number.
QImage turned(const QImage& picture, int orientation);

/// `size` scaled down, its proportions kept, so that it fits into `maximum`; as it is when it does already.
QSize fittedSize(QSize size, QSize maximum);

} // namespace ovisto
