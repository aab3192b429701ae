// SPDX-License-Identifier: MIT

#pragma once

#include "ui/App/Dialogs.h"
#include "ui/App/ScanSettings.h"
#include "ui_BrowserCapForm.h"

#include <QDialog>
#include <QMenu>
#include <QString>

namespace ovisto {

/// Lets the user choose a folder and what to look for in it.
class BrowserCapForm : public QDialog {
    Q_OBJECT

public:
    /// Starts with the settings in `scan`. `settings` has the recent folders. It and `dialogs` must outlive the form.
    BrowserCapForm(const ScanSettings& scan, Settings& settings, Dialogs& dialogs, QWidget* owner);

    /// Puts the caret into the words to search for.
    void focusWords();

    /// Whether the user closed the dialog other than with "Select Folder".
    bool Cancelled() const { return result() != Accepted; }

    /// The folder selected in the tree or typed; a typed one may not exist. If the box is empty, the one in the tree.
    QString SelectedFolder() const { return m_selectedFolder; }

    /// What was chosen.
    ScanSettings settings() const;

private:
    void setSettings(const ScanSettings& scan);
    void selectionChanged(const QString& folder);
    void folderTyped(const QString& text);
    void selectFolder();

    Ui::BrowserCapForm ui;
    Dialogs& m_dialogs;
    QMenu m_recent;
    QString m_selectedFolder;
    bool m_typing = false; ///< the tree is following what is typed, not the other way round
};

} // namespace ovisto
