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

    /// Shows a message with an OK button. Lines are separated by CR LF.
    virtual void show(const QString& message) = 0;

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
