#pragma once

#include "common/xml/XmlDocument.h"

#include <QLocale>
#include <QString>

namespace ovisto {

/// One line about a file: title, date taken, size of the thumbnail and of the picture, camera. What the metadata
/// document does not have is left out.
QString detailsLine(const XmlDocument& JpegDoc, const QLocale& locale);

} // namespace ovisto
