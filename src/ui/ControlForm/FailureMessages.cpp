// SPDX-License-Identifier: MIT

#include "ui/ControlForm/FailureMessages.h"

#include "ui/App/Text.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace ovisto {

namespace {

/// The reader names the file in what it says, the parser does not.
QString line(const FileFailure& failure)
{
    const QString reason = toQString(failure.error.description);
    const bool namesFile = reason.contains(toQString(failure.path));
    return namesFile ? reason : toQString(Phrase(Message::InContext, failure.path, failure.error.description));
}

QString line(const std::string& path)
{
    return shownPath(path);
}

template <class Item> QString messageOf(const QString& heading, const std::vector<Item>& items)
{
    constexpr std::size_t kMost = 10; // a box with many more is larger than the screen
    QStringList lines(heading);
    const std::size_t shown = std::min(items.size(), kMost);
    for (std::size_t i = 0; i < shown; ++i)
        lines << line(items[i]);
    if (items.size() > shown)
        lines << QCoreApplication::translate("FailureMessages", "and %Ln more", nullptr,
                                             pluralNumber(items.size() - shown));
    return lines.join(QStringLiteral("\r\n"));
}

} // namespace

QString leftOutMessage(const std::vector<FileFailure>& leftOut)
{
    return messageOf(QCoreApplication::translate("FailureMessages", "The report does not cover these files:"), leftOut);
}

QString missingMessage(const std::vector<std::string>& missing)
{
    return messageOf(QCoreApplication::translate("FailureMessages", "There is no such file or folder:"), missing);
}

QString notReadMessage(const std::vector<FileFailure>& notRead)
{
    return messageOf(QCoreApplication::translate("FailureMessages", "Other folders that could not be read (%Ln):",
                                                 nullptr, pluralNumber(notRead.size())),
                     notRead);
}

} // namespace ovisto
