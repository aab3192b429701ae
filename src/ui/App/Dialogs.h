#pragma once

#include <QString>

#include <optional>

namespace ovisto {

/// Whoever puts the program's messages and questions before a person: boxes on the screen, a test.
class Dialogs {
public:
    Dialogs() = default;
    Dialogs(const Dialogs&) = delete;
    Dialogs& operator=(const Dialogs&) = delete;
    virtual ~Dialogs() = default;

    /// Shows a message, to be answered by OK. Its lines end with CR LF.
    virtual void show(const QString& message) = 0;

    /// Asks a question, to be answered by Yes or No.
    virtual bool ask(const QString& question) = 0;

    /// Lets an existing file be chosen, beginning at `folder`. `filter` is written as QFileDialog has it; an empty
    /// `title` is the desktop's own. Nothing when the person cancels.
    virtual std::optional<QString> chooseFile(const QString& title, const QString& folder, const QString& filter) = 0;
};

} // namespace ovisto
