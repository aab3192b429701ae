// SPDX-License-Identifier: MIT

#pragma once

#include "document/ValueWords.h"

#include <QLocale>

namespace ovisto {

/// The locale's long form of a date without the day of the week.
QString dayFormat(const QLocale& locale);
/// The locale's long form of a time without the time zone, which Exif does not tell, and the part of the day.
QString timeFormat(const QLocale& locale);

/// Values in the words of the window, with numbers and dates as the locale has them.
class LocaleWords : public ValueWords {
public:
    explicit LocaleWords(const QLocale& locale = QLocale()) : m_locale(locale) {}

    std::string number(double number, int decimals) const override;
    std::string moment(const Moment& moment) const override;
    std::string phrase(const Phrase& phrase) const override;
    std::string reportWords(const std::string& text) const override;
    std::string reportCount(std::int64_t count, const std::string& one, const std::string& many) const override;

private:
    QLocale m_locale;
};

} // namespace ovisto
