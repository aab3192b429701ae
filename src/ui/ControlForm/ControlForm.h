// SPDX-License-Identifier: MIT

#pragma once

#include "document/TagDictionary.h"
#include "ui/App/HelpKey.h"
#include "ui/App/MessageReporter.h"
#include "ui/App/Surroundings.h"
#include "ui/ControlForm/EditedBoxes.h"
#include "ui/ControlForm/Editor.h"
#include "ui/ControlForm/FileSearch.h"
#include "ui/ControlForm/KeywordPane.h"
#include "ui/ControlForm/ListActions.h"
#include "ui/ControlForm/WindowParts.h"
#include "ui_ControlForm.h"

#include <QMainWindow>

#include <string>
#include <vector>

namespace ovisto {

/// The main window: a list of files, and the properties of the file shown.
class ControlForm : public QMainWindow {
    Q_OBJECT

public:
    /// `dictionary` says what the nodes of a document are.
    ControlForm(TagDictionary dictionary, const Surroundings& surroundings);

    /// Shows the window with the files and folders in `paths` or, if there are none, with a folder that the user
    /// chooses. Returns false, without a window, if the user cancels that choice.
    bool start(const std::vector<std::string>& paths);

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    /// The controls, which are there before the panes connect to them.
    struct Controls : Ui::ControlForm {
        explicit Controls(QMainWindow* form) { setupUi(form); }
    };

    void connectButtons();
    void connectKeys();
    void connectMenus();
    void offerReading(bool keeps);
    void loadSettings();
    void saveSettings();

    Controls ui;
    Surroundings m_surroundings;
    MessageReporter m_reporter;
    TagDictionary Merovel;
    bool ControlsUpdating = false; ///< the program itself is filling controls; their handlers do nothing
    EditedBoxes m_boxes;
    WindowParts m_parts;
    Editor m_editor;
    KeywordPane m_keywords;
    FileSearch m_search;
    ListActions m_actions;
    HelpKey m_helpKey;
};

} // namespace ovisto
