// SPDX-License-Identifier: MIT

#include "ui/App/Language.h"

#include "common/system/File.h"

#include <QCoreApplication>
#include <QFile>
#include <QLibraryInfo>
#include <QLocale>

namespace ovisto {

namespace {

QString textsOf(const QString& language)
{
    return QStringLiteral(":/translations/ovisto_%1.qm").arg(language);
}

/// The names that a translation for people of this locale may have, the closest first.
QStringList namesFor(const QString& locale)
{
    const QLocale wanted(locale);
    if (wanted.script() == QLocale::SimplifiedHanScript) // wherever it is written
        return {QStringLiteral("zh_CN")};
    if (wanted.script() == QLocale::TraditionalHanScript)
        return {QStringLiteral("zh_TW")};
    return {wanted.name(), QLocale::languageToCode(wanted.language())};
}

QString firstSpoken(const QStringList& wanted)
{
    for (const QString& locale : wanted) {
        for (const QString& name : namesFor(locale)) {
            if (QFile::exists(textsOf(name)))
                return name;
        }
    }
    return QStringLiteral("en"); // which has the plural forms only
}

} // namespace

Language::Language(const QStringList& wanted) : m_name(firstSpoken(wanted))
{
    const QLocale own(m_name);
    const QLocale system = QLocale::system();
    // A system without a locale has plain dates (14 May 2023) and English words, which are not to become American.
    const QLocale::Language language = system.language() == QLocale::C ? QLocale::English : system.language();
    QLocale::setDefault(language == own.language() ? system : own);
    // Those installed last are asked first.
    if (m_qtTexts.load(QStringLiteral("qtbase_") + m_name, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(&m_qtTexts);
    if (m_texts.load(textsOf(m_name)))
        QCoreApplication::installTranslator(&m_texts);
}

Language::~Language()
{
    QCoreApplication::removeTranslator(&m_texts);
    QCoreApplication::removeTranslator(&m_qtTexts);
    QLocale::setDefault(m_localeBefore);
}

std::string Language::dictionaryTexts(const std::string& dataFolder) const
{
    const std::string path = dataFolder + "Merovel." + m_name.toStdString() + ".xml";
    return fileExists(path) ? path : std::string();
}

} // namespace ovisto
