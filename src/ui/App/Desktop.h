#pragma once

#include "ui/App/Dialogs.h"

#include <QString>

#include <string>

class QWidget;

namespace ovisto {

/// What the desktop does with a file at the program's request.
class Desktop {
public:
    Desktop() = default;
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;
    virtual ~Desktop() = default;

    /// Opens the file with the program that the desktop has for it. False when there is none.
    virtual bool open(const std::string& path) = 0;

    /// Shows the desktop's property sheet of the file, or one of our own where there is none.
    virtual void showProperties(const std::string& path, QWidget& owner) = 0;
};

/// The desktop that the program runs on.
class SystemDesktop : public Desktop {
public:
    bool open(const std::string& path) override;
    void showProperties(const std::string& path, QWidget& owner) override;
};

enum class Verb { Open, Properties };

/// Does with the file at `path` what `verb` says. Nothing is said when that fails; false when the desktop has
/// no program to open it with.
bool ShellVerb(Desktop& desktop, const std::string& path, QWidget& owner, Verb verb);

/// Opens the handbook, whose first page is `helpFile`. When there is no such file, or nothing opens it, a message says
/// so.
void HelpContents(Desktop& desktop, Dialogs& dialogs, const std::string& helpFile);

} // namespace ovisto
