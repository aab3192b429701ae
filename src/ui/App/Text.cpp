// SPDX-License-Identifier: MIT

#include "ui/App/Text.h"

#include <utility>

namespace ovisto {

namespace {

std::string messageText(Message message, std::optional<std::int64_t> count)
{
    const int number = count ? pluralNumber(static_cast<std::uint64_t>(*count)) : -1;
    return QCoreApplication::translate("Message", sourceText(message), nullptr, number).toStdString();
}

} // namespace

QString toQString(const Phrase& phrase)
{
    return toQString(phrase.words(messageText));
}

int pluralNumber(std::uint64_t count)
{
    constexpr std::uint64_t kLastDigits = 1'000'000;
    const bool fits = std::in_range<int>(count);
    return static_cast<int>(fits ? count : kLastDigits + count % kLastDigits);
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
