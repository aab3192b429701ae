// SPDX-License-Identifier: MIT

#pragma once

#include "common/ErrorReport.h"
#include "ui/App/Dialogs.h"

namespace ovisto {

/// Shows errors in message boxes.
class MessageReporter : public ErrorReporter {
public:
    /// `dialogs` must outlive the reporter.
    explicit MessageReporter(Dialogs& dialogs) : m_dialogs(dialogs) {}

    void report(const Phrase& context, const Error& error) override;

private:
    Dialogs& m_dialogs;
};

} // namespace ovisto
