// SPDX-License-Identifier: MIT

#pragma once

#include "common/xml/XmlDocument.h"

#include <QLocale>
#include <QString>

namespace ovisto {

/// What a show tells about a file.
struct SlideDetails {
    QString title; ///< in quotation marks
    QString facts; ///< date taken, size of the thumbnail and of the picture, camera

    /// All of it, on one line.
    QString line() const;
};

/// What the metadata document does not have is left out.
SlideDetails slideDetails(const XmlDocument& JpegDoc, const QLocale& locale);

} // namespace ovisto
