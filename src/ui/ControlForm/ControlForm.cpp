// SPDX-License-Identifier: MIT

#include "ui/ControlForm/ControlForm.h"

#include "ui/AboutForm/AboutForm.h"
#include "ui/App/GapKeys.h"
#include "ui/App/Placement.h"
#include "ui/App/RecentFolders.h"
#include "ui/App/RecentMenu.h"
#include "ui/App/Text.h"
#include "ui/ControlForm/BoxHeights.h"
#include "ui/SlideForm/SlideForm.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QShortcut>
#include <QTimer>
#include <QUrl>

#include <utility>

namespace ovisto {

namespace {

/// The settings of the check items in the menu, and what they are on a first run.
struct OptionSetting {
    const char* key;
    QAction* Ui::ControlForm::*item;
    bool whenMissing;
};

constexpr OptionSetting kOptionSettings[] = {
    {"DecodeExif1", &Ui::ControlForm::menuDecodeExif1, true},
    {"DecodeMaker", &Ui::ControlForm::menuDecodeMaker, true},
    {"DecodeThumb", &Ui::ControlForm::menuDecodeThumb, true},
    {"KeepUntouched", &Ui::ControlForm::menuKeepUntouched, true},
    {"ReadEverything", &Ui::ControlForm::menuReadEverything, true},
    {"ShowTechnical", &Ui::ControlForm::menuShowTechnical, false},
};

/// The splitters, and how they divide a window of the size of a first run.
struct SplitterSetting {
    QSplitter* Ui::ControlForm::*splitter;
    const char* whenMissing;
};

constexpr SplitterSetting kSplitterSettings[] = {
    {&Ui::ControlForm::ControlFormColumns, "205,300,258"},
    {&Ui::ControlForm::ControlFormLists, "310,210"},
    {&Ui::ControlForm::ControlFormPicture, "270,250"},
    {&Ui::ControlForm::ControlFormProperties, "240,280"},
};

/// The path of a file that is dropped, in the bytes of its name, which may not be UTF-8.
std::string droppedPath(const QUrl& url)
{
    const std::string path = QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()).toStdString();
    return url.host().isEmpty() ? path : "//" + url.host().toStdString() + path;
}

} // namespace

ControlForm::ControlForm(TagDictionary dictionary, const Surroundings& surroundings)
    : ui(this), m_surroundings(surroundings), m_reporter(surroundings.dialogs), Merovel(std::move(dictionary)),
      m_boxes(*this), m_parts{*this, ui, m_surroundings, Merovel, m_reporter, m_boxes, ControlsUpdating},
      m_editor(m_parts), m_keywords(m_parts), m_search(m_parts, m_editor), m_actions(m_parts, m_editor),
      m_helpKey(m_surroundings)
{
    connect(&m_keywords, &KeywordPane::chosen, &m_editor.osPane(), &OsPane::insertKeyword);
    connectButtons();
    connectKeys();
    connectMenus();
    limitBoxHeights(ui);
    loadSettings();
}

void ControlForm::connectButtons()
{
    // A button pressed by its underlined letter does not take the focus by itself, but the box being edited must be
    // left before anything happens.
    for (QAbstractButton* button : findChildren<QAbstractButton*>())
        connect(button, &QAbstractButton::pressed, button, [button] { button->setFocus(); });
    const auto pickPrevious = [this] {
        m_boxes.moveFocusTo(*ui.FilePickerPrev);
        m_editor.step(&FoundFiles::previous);
    };
    const auto pickNext = [this] {
        m_boxes.moveFocusTo(*ui.FilePickerNext);
        m_editor.step(&FoundFiles::next);
    };
    connect(ui.FileFinder, &QPushButton::clicked, this, [this] { m_search.findFiles(); });
    if (isRightToLeft()) { // arrows are not turned round by themselves
        ui.FilePickerPrev->setArrowType(Qt::RightArrow);
        ui.FilePickerNext->setArrowType(Qt::LeftArrow);
    }
    connect(ui.FilePickerPrev, &QToolButton::clicked, this, pickPrevious);
    connect(ui.FilePickerNext, &QToolButton::clicked, this, pickNext);
    // Not the page keys by themselves, which scroll where they are pressed.
    for (const auto keys : {Qt::CTRL | Qt::Key_PageUp, Qt::ALT | Qt::Key_Left})
        connect(new QShortcut(keys, this), &QShortcut::activated, this, pickPrevious);
    for (const auto keys : {Qt::CTRL | Qt::Key_PageDown, Qt::ALT | Qt::Key_Right})
        connect(new QShortcut(keys, this), &QShortcut::activated, this, pickNext);
    connect(ui.SlideShower, &QPushButton::clicked, &m_actions, &ListActions::showSlideShowOptions);
    connect(ui.BatchShower, &QPushButton::clicked, &m_actions, &ListActions::showBatch);
}

/// Keys that no button or menu item has.
void ControlForm::connectKeys()
{
    new GapKeys(*this);
    connect(new QShortcut(Qt::Key_F2, this), &QShortcut::activated, &m_editor, &Editor::editValue);
    connect(new QShortcut(Qt::Key_F10, this), &QShortcut::activated, this,
            [this] { ui.MenuBar->setActiveAction(ui.menuFile->menuAction()); });
}

/// What is rebuilt is read basic, so the choice is there only for what is kept.
void ControlForm::offerReading(bool keeps)
{
    ui.menuReadEverything->setEnabled(keeps);
    ui.menuReadEverything->setToolTip(
        keeps ? ui.menuReadEverything->statusTip()
              : tr("Goes with \"Keep Untouched Data?\": what is written anew is read in the basic way."));
}

void ControlForm::connectMenus()
{
    ui.menuOptions->setToolTipsVisible(true);
    connect(ui.menuKeepUntouched, &QAction::toggled, this, &ControlForm::offerReading);
    offerReading(ui.menuKeepUntouched->isChecked());
    connect(ui.menuFindFiles, &QAction::triggered, this, [this] { m_search.findFiles(); });
    connect(ui.menuFindWords, &QAction::triggered, this, [this] { m_search.findFiles(FileSearch::Start::Words); });
    connect(new RecentMenu(*ui.menuRecent, m_surroundings.settings), &RecentMenu::chosen, this,
            [this](const QString& folder) { m_search.openRecent(folder); });
    connect(ui.menuReadAgain, &QAction::triggered, &m_editor, &Editor::readAgain);
    connect(ui.menuFileSave, &QAction::triggered, this, [this] {
        m_boxes.moveFocusTo(*ui.FileSaver);
        m_editor.saveAndReopen();
    });
    connect(ui.menuFileSaveXML, &QAction::triggered, this, [this] {
        m_boxes.moveFocusTo(*ui.FileSaver);
        m_editor.saveXml();
    });
    connect(ui.menuFileReset, &QAction::triggered, this, [this] {
        ui.SaveWarning->show();
        m_boxes.moveFocusTo(*ui.FileReset);
        m_editor.reset();
    });
    connect(ui.menuPrivate, &QAction::triggered, &m_editor, &Editor::showPrivate);
    connect(ui.menuGenerate, &QAction::triggered, &m_actions, &ListActions::generateReport);
    connect(ui.menuFileExit, &QAction::triggered, this, &ControlForm::close);
    connect(ui.menuImageOpen, &QAction::triggered, this, [this] { m_editor.runVerb(Verb::Open); });
    connect(ui.menuImageProps, &QAction::triggered, this, [this] { m_editor.runVerb(Verb::Properties); });
    connect(ui.menuHelpAbout, &QAction::triggered, this, [this] { AboutForm(this).exec(); });
    connect(ui.menuHelpContents, &QAction::triggered, this, [this] {
        HelpContents(m_surroundings.desktop, m_surroundings.dialogs, m_surroundings.folders.data + "help/index.html");
    });
}

void ControlForm::loadSettings()
{
    const Settings& settings = m_surroundings.settings;
    const QString folder = pathText(m_surroundings.folders.data);
    PlacementLoad(*this, settings, objectName(), QStringLiteral("0,0,11655,8505"));
    for (const SplitterSetting& setting : kSplitterSettings)
        splitterLoad(*(ui.*setting.splitter), settings, QLatin1String(setting.whenMissing));
    columnsLoad(*ui.NodeTree, settings, QStringLiteral("150"));
    m_keywords.load(toPath(settings.GetSetting(QStringLiteral("Keywords"), folder + QStringLiteral("keywords.txt"))));
    m_search.settings = loadScanSettings(settings, firstFolder());
    for (const OptionSetting& option : kOptionSettings)
        (ui.*option.item)->setChecked(settings.choice(QLatin1String(option.key), option.whenMissing));
}

void ControlForm::saveSettings()
{
    Settings& settings = m_surroundings.settings;
    PlacementSave(*this, settings, objectName());
    for (const SplitterSetting& setting : kSplitterSettings)
        splitterSave(*(ui.*setting.splitter), settings);
    columnsSave(*ui.NodeTree, settings);
    saveScanSettings(m_search.settings, settings);
    for (const OptionSetting& option : kOptionSettings)
        settings.saveChoice(QLatin1String(option.key), (ui.*option.item)->isChecked());
}

bool ControlForm::start(const std::vector<std::string>& paths)
{
    if (paths.empty())
        return m_search.findFiles();
    show();
    m_search.findFilesAmong(paths);
    return true;
}

void ControlForm::closeEvent(QCloseEvent* event)
{
    if (auto* show = findChild<SlideForm*>())
        show->close();
    m_boxes.moveFocusTo(*ui.FileFinder);
    // What could not be saved is not thrown away by closing. Whoever wants that answers No.
    const auto saved = m_editor.OfferSave(true);
    if (saved == ShownFile::SaveResult::GivenUp)
        m_editor.openAgain();
    if (saved == ShownFile::SaveResult::Failed || saved == ShownFile::SaveResult::GivenUp) {
        event->ignore();
        return;
    }
    saveSettings();
    event->accept();
}

void ControlForm::dragEnterEvent(QDragEnterEvent* event)
{
    const bool isBusy = QApplication::activeModalWidget() != nullptr;
    if (!event->mimeData()->hasUrls() || isBusy)
        return;
    event->setDropAction(Qt::CopyAction); // whoever lets them be moved would delete them
    event->accept();
}

void ControlForm::dropEvent(QDropEvent* event)
{
    std::vector<std::string> paths;
    for (const QUrl& url : event->mimeData()->urls()) {
        if (url.isLocalFile())
            paths.push_back(droppedPath(url));
    }
    if (paths.empty())
        return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // Later, as a question now would keep the program waiting that the files came from.
    QTimer::singleShot(0, this, [this, paths] {
        m_boxes.moveFocusTo(*ui.FileFinder);
        m_search.findFilesAmong(paths);
    });
}

} // namespace ovisto
