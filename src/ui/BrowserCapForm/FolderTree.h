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

    /// Selects `folder` and scrolls to it; where there is no such folder, the nearest one above it.
    void select(const QString& folder);

    /// Full path of the folder selected.
    QString selected() const;

Q_SIGNALS:
    /// `folder` was selected, maybe once more.
    void SelectionChanged(const QString& folder);

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    bool viewportEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void keepInView();

    QFileIconProvider m_icons; // before the model, which asks it from a thread of its own
    QFileSystemModel m_folders;
    bool m_settling = false; ///< nobody has scrolled or clicked since select()
};

/// The folder that `text`, typed by a person, means: "~" is the home folder, and names without a folder stand in it.
QString typedFolder(const QString& text);

} // namespace ovisto
