#pragma once

#include <QSettings>
#include <QString>

namespace ovisto {

/// What the program remembers between runs: texts under keys, in the user's settings store.
class Settings {
public:
    /// The store of the user.
    Settings();
    /// A store in a file of its own.
    explicit Settings(const QString& file);

    /// The text under `key`, `whenMissing` where there is none.
    QString GetSetting(const QString& key, const QString& whenMissing) const;
    void SaveSetting(const QString& key, const QString& text);

    /// A choice is stored as "1" or "0". Exactly "1" is a yes.
    bool choice(const QString& key, bool whenMissing) const;
    void saveChoice(const QString& key, bool choice);

private:
    QSettings m_store;
};

} // namespace ovisto
