// SPDX-License-Identifier: MIT

#pragma once

#include <QFileIconProvider>
#include <QFileSystemModel>
#include <QString>
#include <QTreeView>

namespace ovisto {

/// The folders of the file system as a tree, one of them selected.
class FolderTree : public QTreeView {
    Q_OBJECT

public:
    explicit FolderTree(QWidget* parent = nullptr);

    /// Selects `folder`, or the nearest existing folder above it, and scrolls to it.
    void select(const QString& folder);

    /// Full path of the folder selected.
    QString selected() const;

Q_SIGNALS:
    /// `folder` was selected, possibly again.
    void SelectionChanged(const QString& folder);

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    bool viewportEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void keepInView();

    QFileIconProvider m_icons; // declared before the model, whose thread uses it
    QFileSystemModel m_folders;
    bool m_settling = false; ///< the user has not scrolled or clicked since select()
};

/// The folder that the typed `text` means: "~" is the home folder, and a relative path starts there.
QString typedFolder(const QString& text);

} // namespace ovisto
