// SPDX-License-Identifier: MIT

#pragma once

#include "common/Phrase.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>
#include <QStringList>

#include <cstdint>
#include <string>

namespace ovisto {

// Text of the engine is UTF-8. Paths are bytes as the system gives them, which may not be UTF-8.

inline QString toQString(const std::string& utf8)
{
    return QString::fromStdString(utf8);
}

/// The words of `phrase` in the language of the window.
QString toQString(const Phrase& phrase);

/// A number of things as QCoreApplication::translate() takes it for the form of a text. The forms go by the last
/// digits.
int pluralNumber(std::uint64_t count);

/// `text` with a full stop.
QString sentence(const QString& text);
/// The items of a list in one line.
QString listed(const QStringList& items);

/// A path for display. Bytes that are not UTF-8 become replacement characters.
inline QString pathText(const std::string& path)
{
    return QString::fromStdString(path);
}

/// A path that the user chose in a dialog.
inline std::string toPath(const QString& path)
{
    return path.toStdString();
}

} // namespace ovisto
