#include "ui/ControlForm/ReportMessage.h"

#include "ui/App/Text.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>

namespace ovisto {

namespace {

/// The reader names the file in what it says, the parser does not.
QString line(const FileFailure& failure)
{
    const bool namesFile = failure.error.description.find(failure.path) != std::string::npos;
    return toQString((namesFile ? "" : failure.path + ": ") + failure.error.description);
}

} // namespace

QString leftOutMessage(const std::vector<FileFailure>& leftOut)
{
    constexpr std::size_t kMost = 10; // a box with many more is larger than the screen
    QStringList lines(QCoreApplication::translate("ReportMessage", "The report does not cover these files:"));
    const std::size_t shown = std::min(leftOut.size(), kMost);
    for (std::size_t i = 0; i < shown; ++i)
        lines << line(leftOut[i]);
    if (leftOut.size() > shown)
        lines << QCoreApplication::translate("ReportMessage", "and %1 more").arg(leftOut.size() - shown);
    return lines.join(QStringLiteral("\r\n"));
}

} // namespace ovisto
