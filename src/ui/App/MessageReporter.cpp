// SPDX-License-Identifier: MIT

#include "ui/App/MessageReporter.h"

#include "ui/App/Text.h"

#include <algorithm>
#include <iterator>

namespace ovisto {

namespace {

/// What a person can do about an error.
struct Advice {
    int number;
    const char* text;
};

constexpr Advice kAdvice[] = {
    {kOverflow, QT_TRANSLATE_NOOP("Advice", "Change the value, or delete the property.")},
    {kOutOfMemory, QT_TRANSLATE_NOOP("Advice", "Close other programs, and try again.")},
    {kTypeMismatch, QT_TRANSLATE_NOOP("Advice", "Type a value of the data type that is shown below it: a whole number, "
                                                "or a fraction such as 1/125. Several are separated by commas.")},
    {kFileNotFound, QT_TRANSLATE_NOOP("Advice", "Check whether the file was moved, renamed or deleted.")},
    {kDeviceError, QT_TRANSLATE_NOOP("Advice", "Copy what you can to another disk, and work there.")},
    {kDiskFull, QT_TRANSLATE_NOOP("Advice", "Free some space on the disk, and try again.")},
    {kPermissionDenied, QT_TRANSLATE_NOOP("Advice", "Check the permissions of the file and of its folder.")},
    {kPathNotFound, QT_TRANSLATE_NOOP("Advice", "Check that the disk or card is connected, and that the folder was not "
                                                "renamed.")},
    {kStructureError, QT_TRANSLATE_NOOP("Advice", "The file is not a JPEG photograph, or it is damaged. If it was one, "
                                                  "restore it from your backup.")},
};

QString adviceOn(const Error& error)
{
    const auto* row = std::ranges::find(kAdvice, error.number, &Advice::number);
    return row != std::end(kAdvice) ? QCoreApplication::translate("Advice", row->text) : QString();
}

} // namespace

void MessageReporter::report(const Phrase& context, const Error& error)
{
    m_dialogs.showFailure(toQString(errorReportText(context, error)), adviceOn(error));
}

} // namespace ovisto
