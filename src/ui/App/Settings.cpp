// SPDX-License-Identifier: MIT

#include "ui/App/Settings.h"

#include <QStringList>
#include <QVariant>

namespace ovisto {

namespace {

QString choiceText(bool choice)
{
    return choice ? QStringLiteral("1") : QStringLiteral("0");
}

} // namespace

Settings::Settings() : m_store(QStringLiteral("Castelmar"))
{
    m_store.beginGroup(QStringLiteral("Lumetra"));
}

Settings::Settings(const QString& file) : m_store(file, QSettings::IniFormat)
{
    m_store.beginGroup(QStringLiteral("Lumetra"));
}

QString Settings::GetSetting(const QString& key, const QString& whenMissing) const
{
    // In a file edited by hand, a text with commas and without quotation marks reads as a list.
    const QVariant value = m_store.value(key, whenMissing);
    return value.typeId() == QMetaType::QStringList ? value.toStringList().join(QLatin1Char(',')) : value.toString();
}

void Settings::SaveSetting(const QString& key, const QString& text)
{
    m_store.setValue(key, text);
}

bool Settings::choice(const QString& key, bool whenMissing) const
{
    return GetSetting(key, choiceText(whenMissing)) == QLatin1String("1");
}

void Settings::saveChoice(const QString& key, bool choice)
{
    SaveSetting(key, choiceText(choice));
}

} // namespace ovisto
