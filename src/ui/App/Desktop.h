// SPDX-License-Identifier: MIT

#pragma once

#include "ui/App/Dialogs.h"

#include <QString>

#include <string>

class QWidget;

namespace ovisto {

/// What the program asks the desktop to do with a file.
class Desktop {
public:
    Desktop() = default;
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;
    virtual ~Desktop() = default;

    /// Opens the file with the desktop's default program for it. False if there is none.
    virtual bool open(const std::string& path) = 0;

    /// Shows the desktop's property sheet for the file, or our own if it has none.
    virtual void showProperties(const std::string& path, QWidget& owner) = 0;
};

/// The desktop that the program runs on.
class SystemDesktop : public Desktop {
public:
    bool open(const std::string& path) override;
    void showProperties(const std::string& path, QWidget& owner) override;
};

enum class Verb { Open, Properties };

/// Opens the file at `path` or shows its properties, as `verb` says. Shows no message on failure; false if the desktop
/// has no program to open it with.
bool ShellVerb(Desktop& desktop, const std::string& path, QWidget& owner, Verb verb);

/// Opens the handbook, whose first page is `helpFile`. Shows a message if there is no such file or no program to open
/// it.
void HelpContents(Desktop& desktop, Dialogs& dialogs, const std::string& helpFile);

} // namespace ovisto
