// SPDX-License-Identifier: MIT

#include "ui/App/PictureFit.h"

#include "ui/App/PictureFile.h"

#include <QImageReader>
#include <QTransform>

#include <cstddef>
#include <iterator>

namespace ovisto {

QSize fittedSize(QSize size, QSize maximum)
{
    if (size.width() <= maximum.width() && size.height() <= maximum.height())
        return size;
    return size.scaled(maximum, Qt::KeepAspectRatio).expandedTo({1, 1});
}

QImage turned(const QImage& picture, int orientation)
{
    // Where the axes of the stored picture point to, orientation by orientation from 1 on.
    static const QTransform kOrientations[] = {{1, 0, 0, 1, 0, 0},   {-1, 0, 0, 1, 0, 0}, {-1, 0, 0, -1, 0, 0},
                                               {1, 0, 0, -1, 0, 0},  {0, 1, 1, 0, 0, 0},  {0, 1, -1, 0, 0, 0},
                                               {0, -1, -1, 0, 0, 0}, {0, -1, 1, 0, 0, 0}};
    const auto row = static_cast<std::size_t>(orientation) - 1;
    return row < std::size(kOrientations) ? picture.transformed(kOrientations[row]) : picture;
}

QImage fittedPicture(const std::string& fileName, QSize maximum)
{
    PictureFile file(fileName);
    return fittedPicture(file, maximum);
}

QImage fittedPicture(QIODevice& file, QSize maximum)
{
    QImageReader reader(&file);
    reader.setAutoTransform(true);
    const QSize size = reader.size();
    if (size.isEmpty())
        throw Error{kInvalidPicture, Message::InvalidPicture};
    // The reader scales first and turns then: a picture lying on its side has to fit lying.
    const bool turned = reader.transformation().testFlag(QImageIOHandler::TransformationRotate90);
    reader.setScaledSize(fittedSize(size, turned ? maximum.transposed() : maximum));
    QImage picture = reader.read();
    if (picture.isNull())
        throw Error{kInvalidPicture, Message::InvalidPicture};
    return picture;
}

QImage PictureFit(const std::string& fileName, QSize maximum, ErrorReporter& reporter)
{
    QImage picture;
    attempt(reporter, fileName, [&] { picture = fittedPicture(fileName, maximum); });
    return picture;
}

} // namespace ovisto
