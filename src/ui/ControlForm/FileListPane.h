#pragma once

#include "ui/App/FoundFiles.h"
#include "ui/ControlForm/ShownFile.h"
#include "ui/ControlForm/WindowParts.h"

#include <QObject>
#include <QTimer>

#include <optional>
#include <string>
#include <vector>

namespace ovisto {

/// The list of files, FilesFoundList: which one is selected, and which one is to be opened.
class FileListPane : public QObject {
    Q_OBJECT

public:
    /// While `file` is open, one of the list is always selected.
    FileListPane(const WindowParts& parts, const ShownFile& file);

    FoundFiles& files() { return m_found; }
    const FoundFiles& files() const { return m_found; }

    /// The row selected; -1 when there is none.
    int selectedRow() const;
    /// Selects the file in `row`, also when it is selected already, and lets it be opened.
    void open(int row);
    /// Selects the file at `path`, where it is listed. It is not opened.
    void select(const std::string& path);
    /// Selects the file shown again, where the selection was taken back.
    void selectShownFile();
    /// Lets no file be opened for a selection made until now.
    void settle();

    /// Takes all files out of the list.
    void clear();
    void append(std::vector<std::string> found);
    /// The file selected. Files that are not there any more leave the list, and the one that takes their place is
    /// selected. Nothing when none is left, or none is selected.
    std::optional<std::string> existingSelection();

Q_SIGNALS:
    /// The file selected is to be opened.
    void selected();

private:
    void selectionChanged();

    Ui::ControlForm& ui;
    bool& ControlsUpdating;
    const ShownFile& m_file;
    FoundFiles m_found;
    QTimer m_selection; ///< fires when a selection in the list has settled
};

} // namespace ovisto
