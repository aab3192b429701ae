// SPDX-License-Identifier: MIT

#include "ui/BrowserCapForm/FolderTree.h"

#include <QDir>
#include <QEvent>
#include <QHeaderView>

namespace ovisto {

FolderTree::FolderTree(QWidget* parent) : QTreeView(parent)
{
    m_icons.setOptions(QFileIconProvider::DontUseCustomDirectoryIcons);
    m_folders.setIconProvider(&m_icons);
    m_folders.setFilter(QDir::Dirs | QDir::Drives | QDir::NoDotAndDotDot);
    m_folders.setRootPath(QDir::rootPath());
    setModel(&m_folders);
    for (int column = 1; column < m_folders.columnCount(); ++column)
        hideColumn(column);
    setHeaderHidden(true);
    header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    header()->setStretchLastSection(false);
    setUniformRowHeights(true);
    sortByColumn(0, Qt::AscendingOrder);
    connect(this, &QTreeView::clicked, this, [this] { Q_EMIT SelectionChanged(selected()); });
    // The folders beside and above the one selected come in late, and push it away.
    connect(&m_folders, &QFileSystemModel::directoryLoaded, this, &FolderTree::keepInView, Qt::QueuedConnection);
    connect(&m_folders, &QFileSystemModel::layoutChanged, this, &FolderTree::keepInView, Qt::QueuedConnection);
}

void FolderTree::select(const QString& folder)
{
    QDir nearest(folder);
    while (!nearest.exists() && !nearest.isRoot())
        nearest.setPath(QFileInfo(nearest.path()).path());
    m_settling = true;
    setCurrentIndex(m_folders.index(nearest.absolutePath()));
    keepInView();
    Q_EMIT SelectionChanged(selected());
}

QString FolderTree::selected() const
{
    return m_folders.filePath(currentIndex());
}

void FolderTree::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTreeView::currentChanged(current, previous);
    if (current.isValid())
        Q_EMIT SelectionChanged(selected());
}

bool FolderTree::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::Wheel)
        m_settling = false;
    return QTreeView::viewportEvent(event);
}

void FolderTree::keyPressEvent(QKeyEvent* event)
{
    m_settling = false;
    QTreeView::keyPressEvent(event);
}

void FolderTree::keepInView()
{
    if (m_settling)
        scrollTo(currentIndex(), PositionAtCenter);
}

QString typedFolder(const QString& text)
{
    const QString home = QDir::homePath();
    if (text == QLatin1String("~") || text.startsWith(QLatin1String("~/")))
        return QDir::cleanPath(home + text.mid(1));
    return QDir::cleanPath(QDir(home).absoluteFilePath(text));
}

} // namespace ovisto
