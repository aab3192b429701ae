// SPDX-License-Identifier: MIT

#include "ui/App/LocaleWords.h"

#include "ui/App/Text.h"

#include <QDate>
#include <QRegularExpression>
#include <QStringList>
#include <QTime>

#include <cmath>

namespace ovisto {

namespace {

/// What the style sheets that come with the program say.
[[maybe_unused]] constexpr const char* kReportTexts[] = {
    //: The code of the language that you translate into, such as "de" or "zh-CN"
    QT_TRANSLATE_NOOP("Report", "en"),
    QT_TRANSLATE_N_NOOP("Report", "%n photographs"),
    //: The photographs that were taken: the title of a table
    QT_TRANSLATE_NOOP("Report", "Shots"),
    QT_TRANSLATE_NOOP("Report", "Photograph"),
    QT_TRANSLATE_NOOP("Report", "Date"),
    QT_TRANSLATE_NOOP("Report", "Camera"),
    QT_TRANSLATE_NOOP("Report", "Lens"),
    //: Exposure time
    QT_TRANSLATE_NOOP("Report", "Time"),
    QT_TRANSLATE_NOOP("Report", "Aperture"),
    QT_TRANSLATE_NOOP("Report", "ISO"),
    QT_TRANSLATE_NOOP("Report", "Focal length"),
    QT_TRANSLATE_NOOP("Report", "Place"),
    QT_TRANSLATE_NOOP("Report", "Statistics"),
    QT_TRANSLATE_NOOP("Report", "Sensitivity"),
    QT_TRANSLATE_NOOP("Report", "Month"),
    //: A camera, a focal length, a sensitivity or a month
    QT_TRANSLATE_NOOP("Report", "not known"),
};

QString without(const QRegularExpression& part, QString format)
{
    return format.remove(part).trimmed();
}

QDate dateOf(const std::chrono::year_month_day& date)
{
    return {static_cast<int>(date.year()), static_cast<int>(static_cast<unsigned>(date.month())),
            static_cast<int>(static_cast<unsigned>(date.day()))};
}

/// With milliseconds after the seconds where there are any.
QString timeText(const QTime& time, const QLocale& locale)
{
    static const QRegularExpression seconds(QStringLiteral("s+"));
    QString format = timeFormat(locale);
    if (time.msec() != 0)
        format.replace(seconds, QStringLiteral("ss'%1'zzz").arg(locale.decimalPoint()));
    return locale.toString(time, format);
}

} // namespace

QString dayFormat(const QLocale& locale)
{
    static const QRegularExpression weekday(QStringLiteral(R"(^dddd?[\s,.\x{60C}]*|[\s,\x{60C}]*dddd?$)"),
                                            QRegularExpression::UseUnicodePropertiesOption);
    return without(weekday, locale.dateFormat(QLocale::LongFormat));
}

QString timeFormat(const QLocale& locale)
{
    static const QRegularExpression zone(QStringLiteral(R"([\s,]*[(\[]?\bt\b[)\]]?)"),
                                         QRegularExpression::UseUnicodePropertiesOption);
    static const QRegularExpression partOfDay(QStringLiteral("'[^']*'(*SKIP)(*FAIL)|[bB]+ ?")); // unknown to Qt 6.4
    return without(zone, without(partOfDay, locale.timeFormat(QLocale::LongFormat)));
}

std::string LocaleWords::number(double number, int decimals) const
{
    const QString plain = QString::number(number, 'f', decimals);
    const auto point = plain.indexOf(u'.');
    int needed = 0;
    for (int i = 1; point >= 0 && i <= decimals; ++i) {
        if (plain[point + i] != u'0')
            needed = i;
    }
    const double rounded = plain.toDouble();
    return m_locale.toString(rounded == 0 ? 0.0 : rounded, 'f', needed).toStdString();
}

std::string LocaleWords::moment(const Moment& moment) const
{
    QStringList parts;
    if (moment.date)
        parts << m_locale.toString(dateOf(*moment.date), dayFormat(m_locale));
    if (moment.time) {
        const int milliseconds = static_cast<int>(std::lround(moment.time->second * 1000));
        const QTime time(moment.time->hour, moment.time->minute, milliseconds / 1000, milliseconds % 1000);
        if (!time.isValid()) // a leap second
            return ValueWords::moment(moment);
        parts << timeText(time, m_locale);
    }
    return parts.join(QStringLiteral(", ")).toStdString();
}

std::string LocaleWords::phrase(const Phrase& phrase) const
{
    return wordsOf(phrase);
}

std::string LocaleWords::reportWords(const std::string& text) const
{
    return QCoreApplication::translate("Report", text.c_str()).toStdString();
}

/// The style sheets of other people have texts of which there is no translation.
std::string LocaleWords::reportCount(std::int64_t count, const std::string& one, const std::string& many) const
{
    const int number = pluralNumber(static_cast<std::uint64_t>(count));
    const QString words = QCoreApplication::translate("Report", many.c_str(), nullptr, number);
    const QString source = QString::fromStdString(many).replace(QStringLiteral("%n"), QString::number(number));
    return words != source ? words.toStdString() : ValueWords::reportCount(count, one, many);
}

} // namespace ovisto
