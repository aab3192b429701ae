// SPDX-License-Identifier: MIT

#pragma once

#include "common/ErrorReport.h"

#include <QImage>
#include <QSize>

#include <string>

class QIODevice;

namespace ovisto {

inline constexpr int kInvalidPicture = 481; ///< data cannot be decoded as a picture

/// The picture in the file at `fileName`, scaled down to fit into `maximum` and turned according to its Exif
/// orientation. It is never enlarged. A failure is reported with the file name as context, and a null image is
/// returned.
QImage PictureFit(const std::string& fileName, QSize maximum, ErrorReporter& reporter);

/// The same, but raises kInvalidPicture or the system's error instead of reporting it.
QImage fittedPicture(const std::string& fileName, QSize maximum);
QImage fittedPicture(QIODevice& file, QSize maximum);

/// `picture` turned and mirrored according to an Exif orientation (1 to 8); unchanged for any other number.
QImage turned(const QImage& picture, int orientation);

/// `size` scaled down, keeping its proportions, to fit into `maximum`; unchanged if it already fits.
QSize fittedSize(QSize size, QSize maximum);

} // namespace ovisto
