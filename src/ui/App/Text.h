#pragma once

#include "common/Phrase.h"

#include <QByteArray>
#include <QCoreApplication>
#include <QString>

#include <string>

namespace ovisto {

// Text of the engine is UTF-8; paths are bytes as the system gives them, which may be no UTF-8.

inline QString toQString(const std::string& utf8)
{
    return QString::fromStdString(utf8);
}

/// The words of `phrase` in the language of the window.
inline QString toQString(const Phrase& phrase)
{
    return toQString(phrase.words(
        [](Message message) { return QCoreApplication::translate("Message", sourceText(message)).toStdString(); }));
}

/// A path for people to read. What is no UTF-8 in it is shown as a replacement character.
inline QString pathText(const std::string& path)
{
    return QString::fromStdString(path);
}

/// A path that a person chose in a dialog of the system.
inline std::string toPath(const QString& path)
{
    return path.toStdString();
}

} // namespace ovisto
