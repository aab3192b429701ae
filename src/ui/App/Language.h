// SPDX-License-Identifier: MIT

#pragma once

#include <QLocale>
#include <QStringList>
#include <QTranslator>

#include <string>

namespace ovisto {

/// Gives the program's texts in the language of the person, and those of Qt's own dialogs, as long as it lives. Numbers
/// and dates (QLocale) are those of the system, or of the language if the system's are of another one.
class Language {
public:
    /// Takes the first of the languages (as QLocale::uiLanguages() names them) that the program speaks, else English.
    explicit Language(const QStringList& wanted);
    Language(const Language&) = delete;
    Language& operator=(const Language&) = delete;
    ~Language();

    /// Its name, such as "de" or "zh_CN".
    const QString& name() const { return m_name; }

    /// The texts of the tag dictionary in this language, a file beside it in `dataFolder`; empty if there is none.
    std::string dictionaryTexts(const std::string& dataFolder) const;

private:
    QString m_name;
    QLocale m_localeBefore;
    QTranslator m_qtTexts;
    QTranslator m_texts;
};

} // namespace ovisto
