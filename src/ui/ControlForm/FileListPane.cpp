#include "ui/ControlForm/FileListPane.h"

#include "ui/App/Text.h"

#include <QScopedValueRollback>

#include <utility>

namespace ovisto {

FileListPane::FileListPane(const WindowParts& parts, const ShownFile& file)
    : ui(parts.ui), ControlsUpdating(parts.ControlsUpdating), m_file(file)
{
    ui.FilesFoundList->setModel(&m_found);
    m_selection.setSingleShot(true);
    connect(&m_selection, &QTimer::timeout, this, &FileListPane::selected);
    connect(ui.FilesFoundList->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &FileListPane::selectionChanged);
    connect(ui.FilesFoundList, &QListView::clicked, this, [this] {
        if (!m_file.isOpen())
            m_selection.start();
    });
}

/// A list that is still busy with the mouse must not change, so the file is opened a moment later.
void FileListPane::selectionChanged()
{
    if (ControlsUpdating)
        return;
    if (selectedRow() >= 0)
        m_selection.start();
    else if (m_file.isOpen())
        QTimer::singleShot(0, this, &FileListPane::selectShownFile);
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
    const QScopedValueRollback updating(ControlsUpdating, true);
    int row = selectedRow();
    if (row < 0)
        return std::nullopt;
    while (const int missing = m_found.missingFrom(row)) {
        m_found.remove(row, missing);
        if (m_found.rowCount() == 0)
            return std::nullopt;
        row = row < m_found.rowCount() ? row : 0;
    }
    ui.FilesFoundList->setCurrentIndex(m_found.index(row));
    return m_found.path(row);
}

} // namespace ovisto
