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

/// The words of `phrase` in the language of the window, for display: paths keep their order.
QString toQString(const Phrase& phrase);
/// The same for what is written or copied.
std::string wordsOf(const Phrase& phrase);

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

/// `text` for display, where lines may run from right to left: a path, or another text that stays in its own order.
/// There, marks stand around it, which belong into nothing that is written, copied or compared.
QString inItsOrder(const QString& text);

/// A path in a line of text, for display.
inline QString shownPath(const std::string& path)
{
    return inItsOrder(pathText(path));
}

/// A path that the user chose in a dialog.
inline std::string toPath(const QString& path)
{
    return path.toStdString();
}

} // namespace ovisto
