// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <string>

namespace ovisto::bench {

/// A new file: a photograph of 24 megapixels, with some grain for the decoder to work on.
inline std::string largePhotograph(const QTemporaryDir& folder, const char* name)
{
    QImage image(6000, 4000, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const int grain = static_cast<int>(QRandomGenerator::global()->generate() & 15U);
            line[x] = qRgb(x / 26 + grain, y / 17 + grain, 96 + grain);
        }
    }
    const QString path = folder.filePath(QLatin1String(name));
    image.save(path, "JPG", 90);
    return path.toStdString();
}

} // namespace ovisto::bench
