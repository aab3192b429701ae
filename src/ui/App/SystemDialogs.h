// SPDX-License-Identifier: MIT

#pragma once

#include "ui/App/Dialogs.h"

namespace ovisto {

/// The boxes and dialogs of the desktop.
class SystemDialogs : public Dialogs {
public:
    void show(const QString& message) override { showFailure(message, {}); }
    void showFailure(const QString& message, const QString& advice) override;
    void inform(const QString& message) override;
    bool ask(const QString& question) override;
    int choose(const QString& question, const QStringList& answers) override;
    std::optional<QString> chooseFile(const QString& title, const QString& folder, const QString& filter) override;
};

} // namespace ovisto
