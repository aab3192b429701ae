// SPDX-License-Identifier: MIT

#pragma once

#include "ui/App/Desktop.h"
#include "ui/ControlForm/FileListPane.h"
#include "ui/ControlForm/LeftOutLine.h"
#include "ui/ControlForm/OsPane.h"
#include "ui/ControlForm/PropertyPane.h"
#include "ui/ControlForm/SavedLine.h"
#include "ui/ControlForm/ShownFile.h"
#include "ui/ControlForm/WindowParts.h"

#include <QObject>

#include <optional>

namespace ovisto {

/// Opens the file selected in the list in the other panes, and makes sure that no change in them is lost without
/// asking.
class Editor : public QObject, private ShownFile::Window {
    Q_OBJECT

public:
    explicit Editor(const WindowParts& parts);

    FileListPane& list() { return m_list; }
    OsPane& osPane() { return m_osPane; }
    SavedLine& savedLine() { return m_savedLine; }
    KeepOptions keepOptions() const;
    /// How files are read from now on: what is rebuilt is read basic.
    Reading reading() const;
    /// The way in which the next file opened will be saved.
    WritingWay writingWay() const;

    void OpenSelectedFile();
    /// Opens the file selected in the list if none is open.
    void openIfNone();
    /// Closes the file shown, saving its changes if the user wants that. Returns false if they could not be saved, or
    /// were given up for what another program made of the file; the file then stays open.
    bool leaveShownFile();
    /// Offers to save the file shown, which stays open. Returns false if its changes could not be saved.
    bool settleChanges();
    ShownFile::SaveResult OfferSave(bool ask);

    // What buttons and menu items do with the file shown.

    /// Saves it without asking and opens its neighbour in the list.
    void step(std::optional<int> (FoundFiles::*neighbour)(int) const);
    /// Saves it, changed or not, and opens it again, because its image data may have moved.
    void saveAndReopen();
    void saveXml();
    /// Opens it again, discarding its changes.
    void reset();
    /// Opens it again, as another program may have left it. Asks before its changes are discarded.
    void readAgain();
    /// Puts the caret into the value of the selected property.
    void editValue() { m_properties.editValue(); }
    /// The same for a file whose changes were given up.
    void openAgain();
    void runVerb(Verb verb);
    /// Shows what it tells of people and places, and deletes of that what the user selects.
    void showPrivate();

private:
    bool wantsToSave(const std::string& path) override;
    ShownFile::OtherChange askAboutOtherChange(const std::string& path) override;
    void showChanged(bool changed) override;
    void showBusy(bool busy) override;
    void showFailedNode(const std::string& nodePath) override;
    void showSaved(const std::string& path, const std::optional<SaveReceipt>& receipt) override;

    void RebuildTree();
    void nodeAdded(const std::string& nodePath);
    void showNode(const std::string& nodePath);
    void showPicture();
    void showUnreadable(const Phrase& reason);
    void clearShownFile();
    void clearPanes();
    void enableEditing(bool enabled);

    const WindowParts& m_parts;
    Ui::ControlForm& ui;
    bool& ControlsUpdating;
    ShownFile m_file;
    FileListPane m_list;
    OsPane m_osPane;
    PropertyPane m_properties;
    SavedLine m_savedLine;
    LeftOutLine m_leftOutLine;
};

} // namespace ovisto
