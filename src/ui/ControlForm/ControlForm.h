#pragma once

#include "common/system/ProgramFolder.h"
#include "common/xml/XmlDocument.h"
#include "document/TagDictionary.h"
#include "reader/JpegXml.h"
#include "ui/App/Desktop.h"
#include "ui/App/Dialogs.h"
#include "ui/App/FoundFiles.h"
#include "ui/App/MessageReporter.h"
#include "ui/App/ScanSettings.h"
#include "ui/App/Settings.h"
#include "ui/ControlForm/NodeInspection.h"
#include "ui/ControlForm/OsProperties.h"
#include "ui_ControlForm.h"

#include <QMainWindow>
#include <QPointer>
#include <QString>
#include <QTimer>

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace ovisto {

class BatchForm;
class ScanReports;
struct Leaf;
struct NodeChange;

/// What the window needs of the world around it. All of it must outlive the window.
struct Surroundings {
    Dialogs& dialogs;
    Desktop& desktop;
    Settings& settings;
    ProgramFolders folders;
};

/// The main window: a list of files, and the properties of the one that is shown.
class ControlForm : public QMainWindow {
    Q_OBJECT

public:
    /// `dictionary` says what the nodes of a document are.
    ControlForm(TagDictionary dictionary, const Surroundings& surroundings);

    /// Shows the window with the files in `paths`, folders among them, or in a folder that the person chooses when
    /// there are none. Returns whether there is a window: not when that choice was cancelled.
    bool start(const std::vector<std::string>& paths);

protected:
    void closeEvent(QCloseEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class SaveResult { NotSaved, Saved, Failed };

    /// The box of a property of the operating system, and where the text that it had last is kept for "Ditto".
    struct OsBox {
        OsProperty property;
        QWidget* box;
        QString* dittoText;
    };

    void connectControls();
    void connectMenus();
    void loadSettings();
    void saveSettings();
    void moveFocusTo(QWidget& control);

    // The list of files
    bool findFiles();
    void scanFolder();
    void findFilesAmong(const std::vector<std::string>& names);
    void clearList();
    void listFiles(std::vector<std::string> found, const ScanReports& reports);
    int selectedFile() const;
    void selectFile(int row);
    void selectShownFile();
    void pickFile(QWidget& button, std::optional<int> (FoundFiles::*neighbour)(int) const);

    // What is done with all of its files
    void showSlideShowOptions();
    template <class Loop> void runWatched(Loop loop);
    void showBatch();
    void runBatch(const NodeChange& change);
    void generateReport();

    // The file shown
    bool settleChanges();
    bool leaveShownFile();
    void OpenSelectedFile();
    bool findSelectedFile();
    void keepShownFile();
    void readDocument();
    void showPicture();
    void clearShownFile();
    void clearPanes();
    void enableEditing(bool enabled);
    KeepOptions keepOptions() const;
    void runVerb(Verb verb);

    // Its changes
    void MarkChanged();
    void clearChanged();
    SaveResult OfferSave(bool ask);
    SaveResult SaveDocument();
    void saveAndReopen();
    void saveXml();
    void reset();

    // The tree of its properties
    void RebuildTree();
    QTreeWidgetItem* LoadLeaf(const Leaf& leaf, QTreeWidgetItem* parent);
    std::string LeafXPathForItem(const QTreeWidgetItem& item) const;
    XmlNode DocNodeForItem(const QTreeWidgetItem& item);
    QTreeWidgetItem* selectedItem() const;
    void removeItem(const std::string& key);

    // The node selected
    void nodeClicked(const QTreeWidgetItem* item);
    void ShowNodeValue();
    void setValueFont(bool hexadecimal);
    void loadThumbnail();
    void nodeTextChanged();
    void leaveNodeText();
    void addNode();
    void deleteNode();

    // The properties of the operating system
    void leaveFocusedBox() { leaveBox(focusWidget()); }
    void leaveOsBox(const OsBox& osBox);
    void ditto();
    void loadKeywords(const std::string& path);
    void chooseKeywords();
    void insertKeyword();
    bool leaveBox(const QObject* box);

    Ui::ControlForm ui;
    Surroundings m_surroundings;
    MessageReporter m_reporter;
    TagDictionary Merovel;
    ScanSettings m_scan;
    FoundFiles m_found;
    QPointer<BatchForm> m_batch;    ///< while it is open
    bool m_selectedByClick = false; // the press to come has selected the item, and its node is shown
    QTimer m_selection;             ///< fires when a selection in the list has settled

    XmlDocument JpegDoc;           ///< of the file shown
    std::string CurrentFileName;   ///< full path of the file shown; empty when there is none
    bool ChangesMade = false;      ///< JpegDoc differs from the file
    bool ControlsUpdating = false; ///< the program itself fills controls, and their handlers stay silent

    OsProperties m_osProperties;
    QString DittoTitle;
    QString DittoSubject;
    QString DittoComments;
    QString DittoKeywords;
    std::array<OsBox, 4> m_osBoxes; ///< in the order of "Ditto"

    XmlNode CurrentNode; ///< of the tree item selected
    ProtectionLevel CurrentProt = 0;
    std::string CurrentXPath; ///< of the item clicked last, maybe in another file
};

} // namespace ovisto
