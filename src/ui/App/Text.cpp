// SPDX-License-Identifier: MIT

#include "ui/App/Text.h"

#include <QGuiApplication>

#include <utility>

namespace ovisto {

namespace {

std::string messageText(Message message, std::optional<std::int64_t> count)
{
    const int number = count ? pluralNumber(static_cast<std::uint64_t>(*count)) : -1;
    return QCoreApplication::translate("Message", sourceText(message), nullptr, number).toStdString();
}

/// The paths that `phrase` has among its details.
QStringList pathsIn(const Phrase& phrase)
{
    QStringList paths;
    for (const Phrase& detail : phrase.details())
        paths += pathsIn(detail);
    const QString text = phrase.message() == Message::AsItIs ? toQString(wordsOf(phrase)) : QString();
    return text.startsWith(u'/') ? QStringList(text) : paths;
}

} // namespace

QString toQString(const Phrase& phrase)
{
    QString text = toQString(wordsOf(phrase));
    if (QGuiApplication::isRightToLeft()) {
        for (const QString& path : pathsIn(phrase))
            text.replace(path, inItsOrder(path));
    }
    return text;
}

std::string wordsOf(const Phrase& phrase)
{
    return phrase.words(messageText);
}

int pluralNumber(std::uint64_t count)
{
    constexpr std::uint64_t kLastDigits = 1'000'000;
    const bool fits = std::in_range<int>(count);
    return static_cast<int>(fits ? count : kLastDigits + count % kLastDigits);
}

QString inItsOrder(const QString& text)
{
    constexpr QChar kIsolate(0x2066);
    constexpr QChar kEnd(0x2069);
    return QGuiApplication::isRightToLeft() ? kIsolate + text + kEnd : text;
}

QString sentence(const QString& text)
{
    return QCoreApplication::translate("Punctuation", "%1.", "a sentence and its full stop").arg(text);
}

QString listed(const QStringList& items)
{
    return items.join(QCoreApplication::translate("Punctuation", ", ", "between the items of a list"));
}

} // namespace ovisto
