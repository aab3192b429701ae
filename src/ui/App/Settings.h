// SPDX-License-Identifier: MIT

#pragma once

#include <QSettings>
#include <QString>

namespace ovisto {

/// What the program remembers between runs: texts by key, in the user's settings store.
class Settings {
public:
    /// Opens the user's store.
    Settings();
    /// Opens a store in `file`.
    explicit Settings(const QString& file);

    /// The text under `key`, or `whenMissing` if there is none.
    QString GetSetting(const QString& key, const QString& whenMissing) const;
    void SaveSetting(const QString& key, const QString& text);
    void remove(const QString& key) { m_store.remove(key); }

    /// A choice is stored as "1" or "0". Only "1" counts as yes.
    bool choice(const QString& key, bool whenMissing) const;
    void saveChoice(const QString& key, bool choice);

private:
    QSettings m_store;
};

} // namespace ovisto
