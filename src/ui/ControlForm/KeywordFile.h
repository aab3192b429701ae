#pragma once

#include <QString>
#include <QStringList>

#include <string>

namespace ovisto {

/// The keywords in the file at `path`: its lines, ended by CR LF, empty ones included, in code page Windows-1252.
/// Raises what the system says when it cannot be read.
QStringList keywordsIn(const std::string& path);

/// What takes the place of the selection in `text`, `length` characters from `start` on, when `keyword` is clicked: the
/// keyword, with a blank before it at the end of a text, and after it where text follows.
QString keywordInsertion(const QString& text, qsizetype start, qsizetype length, const QString& keyword);

} // namespace ovisto
