#pragma once

#include "ui/App/ScanSettings.h"
#include "ui_BrowserCapForm.h"

#include <QDialog>
#include <QString>

namespace ovisto {

/// Lets a folder be chosen, and what to look for in it.
class BrowserCapForm : public QDialog {
    Q_OBJECT

public:
    /// Begins with `scan`.
    BrowserCapForm(const ScanSettings& scan, QWidget* owner);

    /// Whether the person did anything but press "Select Folder".
    bool Cancelled() const { return result() != Accepted; }

    /// The folder selected in the tree, or typed, which may not exist then. Where nothing stands in the box, the one
    /// in the tree.
    QString SelectedFolder() const { return m_selectedFolder; }

    /// What was chosen.
    ScanSettings settings() const;

private:
    void setSettings(const ScanSettings& scan);
    void selectionChanged(const QString& folder);
    void folderTyped(const QString& text);

    Ui::BrowserCapForm ui;
    QString m_selectedFolder;
    bool m_typing = false; ///< the tree follows what is typed, not the other way round
};

} // namespace ovisto
