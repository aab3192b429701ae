// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

#include <optional>

namespace ovisto {

/// Shows the program's messages and questions: boxes on the screen, a test.
class Dialogs {
public:
    Dialogs() = default;
    Dialogs(const Dialogs&) = delete;
    Dialogs& operator=(const Dialogs&) = delete;
    virtual ~Dialogs() = default;

    // Messages with an OK button. Lines are separated by CR LF.

    /// Something went wrong.
    virtual void show(const QString& message) = 0;
    /// The same, with what the person can do next; that may be empty.
    virtual void showFailure(const QString& message, const QString& advice) = 0;
    /// Nothing went wrong.
    virtual void inform(const QString& message) = 0;

    /// Asks a Yes-or-No question. True for Yes.
    virtual bool ask(const QString& question) = 0;

    /// Asks a question with several answers and returns the index of the one chosen. The last one changes nothing: it
    /// is what the Escape key and the Return key mean, too.
    virtual int choose(const QString& question, const QStringList& answers) = 0;

    /// Lets the user choose an existing file, starting in `folder`. `filter` is in the syntax of QFileDialog; an empty
    /// `title` means the desktop's own. Returns nothing if the user cancels.
    virtual std::optional<QString> chooseFile(const QString& title, const QString& folder, const QString& filter) = 0;
};

} // namespace ovisto
