// SPDX-License-Identifier: MIT

#include "ui/SlideForm/SlideDetails.h"

#include "document/NodePaths.h"
#include "ui/App/LocaleWords.h"
#include "ui/App/Text.h"

#include <QDate>
#include <QStringList>
#include <QTime>

#include <algorithm>
#include <optional>

namespace ovisto {

namespace {

constexpr const char* kDates[] = {kAnyDateTakenPath, kAnyDateDigitisedPath};
constexpr const char* kThumbnailSize[] = {kAnyThumbnailWidthPath, kAnyThumbnailHeightPath};
constexpr const char* kPictureSize[] = {kAnyPictureWidthPath, kAnyPictureHeightPath};

constexpr int kDateLength = 10; // of "2004:05:06"

std::optional<QString> textOf(const XmlDocument& JpegDoc, const char* path)
{
    const ConstXmlNode node = JpegDoc.selectSingleNode(path);
    return node ? std::optional(toQString(node.text())) : std::nullopt;
}

constexpr auto kBetween = " -- ";

std::optional<QString> title(const XmlDocument& JpegDoc)
{
    const auto text = textOf(JpegDoc, kAnyTitlePath);
    return text ? std::optional(QStringLiteral("\"%1\"").arg(text->trimmed())) : std::nullopt;
}

/// A camera whose clock was never set writes a date of colons and blanks.
bool isUnset(const QString& date)
{
    return std::ranges::all_of(date, [](QChar character) { return character == u':' || character == u' '; });
}

QTime timeFrom(const QString& text)
{
    if (text.isEmpty())
        return {0, 0};
    const QTime time = QTime::fromString(text, QStringLiteral("H:m:s"));
    return time.isValid() ? time : QTime::fromString(text, QStringLiteral("H:m"));
}

/// The date as people of the locale write it; as the file has it when it is none.
QString dateText(const QString& text, const QLocale& locale)
{
    const QDate date = QDate::fromString(text.left(kDateLength), QStringLiteral("yyyy:M:d"));
    const QTime time = timeFrom(text.mid(kDateLength).trimmed());
    if (!date.isValid() || !time.isValid())
        return text;
    return QStringList{locale.dayName(date.dayOfWeek(), QLocale::ShortFormat),
                       locale.toString(date, QLocale::LongFormat), locale.toString(time, timeFormat(locale))}
        .join(QLatin1Char(' '));
}

std::optional<QString> dateTaken(const XmlDocument& JpegDoc, const QLocale& locale)
{
    for (const char* path : kDates) {
        const auto text = textOf(JpegDoc, path);
        if (text && !isUnset(*text))
            return dateText(*text, locale);
    }
    return std::nullopt;
}

std::optional<QString> size(const XmlDocument& JpegDoc, const char* const (&paths)[2])
{
    const auto width = textOf(JpegDoc, paths[0]);
    const auto height = textOf(JpegDoc, paths[1]);
    return width && height ? std::optional(inItsOrder(*width + QLatin1Char('X') + *height)) : std::nullopt;
}

} // namespace

QString SlideDetails::line() const
{
    return title.isEmpty() || facts.isEmpty() ? title + facts : title + QLatin1String(kBetween) + facts;
}

SlideDetails slideDetails(const XmlDocument& JpegDoc, const QLocale& locale)
{
    QStringList facts;
    for (const auto& fact : {dateTaken(JpegDoc, locale), size(JpegDoc, kThumbnailSize), size(JpegDoc, kPictureSize),
                             textOf(JpegDoc, kAnyCameraModelPath)}) {
        if (fact)
            facts.append(*fact);
    }
    return {title(JpegDoc).value_or(QString()), facts.join(QLatin1String(kBetween)).trimmed()};
}

} // namespace ovisto
