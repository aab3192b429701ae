// SPDX-License-Identifier: MIT

#include "ui/ControlForm/FileListPane.h"

#include "common/system/FileNames.h"
#include "ui/App/Text.h"
#include "ui/ControlForm/FileRow.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScopedValueRollback>

#include <utility>

namespace ovisto {

namespace {

bool isLetter(const QKeyEvent& key)
{
    const bool isCommand = key.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return !isCommand && !key.text().isEmpty() && key.text().front().isPrint();
}

} // namespace

FileListPane::FileListPane(const WindowParts& parts, const ShownFile& file)
    : ui(parts.ui), m_surroundings(parts.surroundings), ControlsUpdating(parts.ControlsUpdating), m_file(file)
{
    ui.FilesFoundList->setModel(&m_found);
    ui.FilesFoundList->setItemDelegate(new FileRow(this));
    ui.FilesFoundList->installEventFilter(this);
    m_selection.setSingleShot(true);
    connect(&m_selection, &QTimer::timeout, this, &FileListPane::selected);
    connect(ui.FilesFoundList->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &FileListPane::selectionChanged);
    connect(ui.FilesFoundList, &QListView::clicked, this, [this] {
        if (!m_file.isOpen())
            m_selection.start(0);
    });
}

/// A list that is still busy with the mouse must not change, so the file is opened a moment later.
void FileListPane::selectionChanged()
{
    if (ControlsUpdating)
        return;
    if (selectedRow() >= 0)
        m_selection.start(isBeingTyped() ? QApplication::keyboardInputInterval() : 0);
    else if (m_file.isOpen())
        QTimer::singleShot(0, this, &FileListPane::selectShownFile);
}

/// The letters of a name are waited for, as the focus leaves the list when a file is opened.
bool FileListPane::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && isLetter(*static_cast<QKeyEvent*>(event))) {
        m_typed.start();
        if (m_selection.isActive())
            m_selection.start(QApplication::keyboardInputInterval());
    }
    return false;
}

/// Whether a name is being typed, by which a file is found.
bool FileListPane::isBeingTyped() const
{
    return m_typed.isValid() && m_typed.elapsed() < QApplication::keyboardInputInterval();
}

int FileListPane::selectedRow() const
{
    const QModelIndexList selected = ui.FilesFoundList->selectionModel()->selectedIndexes();
    return selected.isEmpty() ? -1 : selected.first().row();
}

void FileListPane::open(int row)
{
    {
        const QScopedValueRollback updating(ControlsUpdating, true);
        ui.FilesFoundList->setCurrentIndex(m_found.index(row));
    }
    Q_EMIT selected();
}

void FileListPane::select(const std::string& path)
{
    const QScopedValueRollback updating(ControlsUpdating, true);
    if (const auto row = m_found.rowOf(path))
        ui.FilesFoundList->setCurrentIndex(m_found.index(*row));
}

void FileListPane::selectShownFile()
{
    const QScopedValueRollback updating(ControlsUpdating, true);
    const QModelIndex shown = ui.FilesFoundList->currentIndex();
    if (selectedRow() < 0 && shown.isValid())
        ui.FilesFoundList->selectionModel()->select(shown, QItemSelectionModel::ClearAndSelect);
}

void FileListPane::settle()
{
    m_selection.stop();
}

void FileListPane::clear()
{
    const QScopedValueRollback updating(ControlsUpdating, true);
    m_found.clear();
}

void FileListPane::append(std::vector<std::string> found)
{
    const QScopedValueRollback updating(ControlsUpdating, true);
    m_found.append(std::move(found));
}

void FileListPane::showCount()
{
    ui.FilesFoundList->setToolTip(toQString(Phrase(Message::FilesFound, std::to_string(m_found.rowCount()))));
}

std::optional<std::string> FileListPane::existingSelection()
{
    const int row = selectExisting();
    if (row < 0)
        return std::nullopt;
    const std::string path = m_found.path(row);
    if (!m_found.isGoneWithFolder(row))
        return path;
    m_surroundings.dialogs.show(tr("The folder %1 is not there. Nothing was removed from the list.\r\nCheck that the "
                                   "disk or card is connected, and click the photograph again.")
                                    .arg(shownPath(folderOf(path))));
    return std::nullopt;
}

/// Returns the selected row, or -1.
int FileListPane::selectExisting()
{
    const QScopedValueRollback updating(ControlsUpdating, true);
    int row = selectedRow();
    if (row < 0)
        return -1;
    while (const int missing = m_found.missingFrom(row)) {
        m_found.remove(row, missing);
        if (m_found.rowCount() == 0)
            return -1;
        row = row < m_found.rowCount() ? row : 0;
    }
    ui.FilesFoundList->setCurrentIndex(m_found.index(row));
    return row;
}

} // namespace ovisto
