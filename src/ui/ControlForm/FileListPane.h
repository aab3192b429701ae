// SPDX-License-Identifier: MIT

#pragma once

#include "ui/App/FoundFiles.h"
#include "ui/ControlForm/ShownFile.h"
#include "ui/ControlForm/WindowParts.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <optional>
#include <string>
#include <vector>

namespace ovisto {

/// The list of files (FilesFoundList): which one is selected, and which one to open.
class FileListPane : public QObject {
    Q_OBJECT

public:
    /// While `file` is open, a file of the list is always selected.
    FileListPane(const WindowParts& parts, const ShownFile& file);

    FoundFiles& files() { return m_found; }
    const FoundFiles& files() const { return m_found; }

    /// The selected row; -1 if there is none.
    int selectedRow() const;
    /// Selects the file in `row`, even if it is already selected, and opens it.
    void open(int row);
    /// Selects the file at `path` if it is in the list, without opening it.
    void select(const std::string& path);
    /// Selects the file shown again if the selection was cleared.
    void selectShownFile();
    /// Drops a selection whose file has not been opened yet.
    void settle();

    /// Removes all files from the list.
    void clear();
    void append(std::vector<std::string> found);
    /// Says in the tool tip of the list how many files it has.
    void showCount();
    /// The selected file. Files that no longer exist are removed from the list, and the next one is selected. Nothing
    /// if none is left or none is selected, or if its whole folder is gone, which is said: the list then stays.
    std::optional<std::string> existingSelection();

Q_SIGNALS:
    /// The selected file is to be opened.
    void selected();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void selectionChanged();
    int selectExisting();
    bool isBeingTyped() const;

    Ui::ControlForm& ui;
    const Surroundings& m_surroundings;
    bool& ControlsUpdating;
    const ShownFile& m_file;
    FoundFiles m_found;
    QTimer m_selection;    ///< fires when a selection in the list has settled
    QElapsedTimer m_typed; ///< since the last letter
};

} // namespace ovisto
