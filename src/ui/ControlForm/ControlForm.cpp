#include "ui/ControlForm/ControlForm.h"

#include "common/Error.h"
#include "ui/AboutForm/AboutForm.h"
#include "ui/App/Placement.h"
#include "ui/App/Text.h"
#include "ui/SlideShowOptionForm/SlideShowOptionForm.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QShortcut>
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

constexpr int kFirstLine = 4; ///< pixels from the top of a box to its first line

/// Whether the focus went to another control of the window, and not only for a while to a menu or another window.
bool isLeaving(const QFocusEvent& event)
{
    return event.reason() != Qt::PopupFocusReason && event.reason() != Qt::MenuBarFocusReason &&
           event.reason() != Qt::ActiveWindowFocusReason;
}

bool isEnter(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

} // namespace

ControlForm::ControlForm(TagDictionary dictionary, const Surroundings& surroundings)
    : m_surroundings(surroundings), m_reporter(surroundings.dialogs), Merovel(std::move(dictionary))
{
    ui.setupUi(this);
    m_osBoxes = {{
        {OsProperty::Title, ui.FileTitle, &DittoTitle},
        {OsProperty::Subject, ui.FileSubject, &DittoSubject},
        {OsProperty::Comments, ui.FileComments, &DittoComments},
        {OsProperty::Keywords, ui.FileKeywords, &DittoKeywords},
    }};
    const int markSize = style()->pixelMetric(QStyle::PM_SmallIconSize);
    ui.SaveWarning->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(markSize));
    ui.SaveWarning->hide();
    ui.FilesFoundList->setModel(&m_found);
    for (QLabel* caption : {ui.FileCommentsL, ui.FileKeywordsL})
        caption->setContentsMargins(0, kFirstLine, 0, 0);
    connectControls();
    connectMenus();
    clearShownFile();
    loadSettings();
}

void ControlForm::connectControls()
{
    m_selection.setSingleShot(true);
    connect(&m_selection, &QTimer::timeout, this, &ControlForm::OpenSelectedFile);
    // A list that is still busy with the mouse must not change, so the file is opened a moment later.
    connect(ui.FilesFoundList->selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
        if (ControlsUpdating)
            return;
        if (selectedFile() >= 0)
            m_selection.start();
        else if (!CurrentFileName.empty())
            QTimer::singleShot(0, this, &ControlForm::selectShownFile);
    });
    connect(ui.FilesFoundList, &QListView::clicked, this, [this] {
        if (CurrentFileName.empty())
            m_selection.start();
    });
    const auto pickPrevious = [this] { pickFile(*ui.FilePickerPrev, &FoundFiles::previous); };
    const auto pickNext = [this] { pickFile(*ui.FilePickerNext, &FoundFiles::next); };
    // A button pressed by its underlined letter does not take the focus by itself, but the box being edited must be
    // left before anything happens.
    for (QAbstractButton* button : findChildren<QAbstractButton*>())
        connect(button, &QAbstractButton::pressed, button, [button] { button->setFocus(); });
    connect(ui.FileFinder, &QPushButton::clicked, this, &ControlForm::findFiles);
    connect(ui.FilePickerPrev, &QToolButton::clicked, this, pickPrevious);
    connect(ui.FilePickerNext, &QToolButton::clicked, this, pickNext);
    connect(new QShortcut(Qt::Key_PageUp, this), &QShortcut::activated, this, pickPrevious);
    connect(new QShortcut(Qt::Key_PageDown, this), &QShortcut::activated, this, pickNext);
    connect(ui.SlideShower, &QPushButton::clicked, this, &ControlForm::showSlideShowOptions);
    connect(ui.BatchShower, &QPushButton::clicked, this, &ControlForm::showBatch);
    connect(ui.KeywordLoader, &QPushButton::clicked, this, &ControlForm::chooseKeywords);
    connect(ui.KeywordList, &QListWidget::itemClicked, this, &ControlForm::insertKeyword);
    connect(ui.Image1, &PictureBox::clicked, this,
            [this](Qt::MouseButton button) { runVerb(button == Qt::LeftButton ? Verb::Open : Verb::Properties); });
    connect(ui.FileSaver, &QPushButton::clicked, this, &ControlForm::saveAndReopen);
    connect(ui.FileReset, &QPushButton::clicked, this, &ControlForm::reset);
    connect(ui.FilePropPaster, &QPushButton::clicked, this, &ControlForm::ditto);
    // Not the current item, which is there as soon as the tree has the focus.
    connect(ui.NodeTree, &QTreeWidget::itemSelectionChanged, this, [this] {
        if (ControlsUpdating)
            return;
        m_selectedByClick = true;
        nodeClicked(selectedItem());
    });
    // A click on the item that was selected already shows its node anew.
    connect(ui.NodeTree, &QTreeWidget::itemPressed, this, [this](const QTreeWidgetItem* item) {
        if (!std::exchange(m_selectedByClick, false))
            nodeClicked(item);
    });
    connect(ui.ViewHexOpt, &QCheckBox::toggled, this, &ControlForm::setValueFont);
    connect(ui.ViewHexOpt, &QCheckBox::toggled, this, [this] {
        if (!ControlsUpdating)
            ShowNodeValue();
    });
    connect(ui.NodeText, &TextBox::textChanged, this, &ControlForm::nodeTextChanged);
    connect(ui.NodeAdder, &QPushButton::clicked, this, &ControlForm::addNode);
    connect(ui.NodeDeleter, &QPushButton::clicked, this, &ControlForm::deleteNode);
    ui.NodeText->installEventFilter(this);
    ui.KeywordList->installEventFilter(this);
    for (const OsBox& osBox : m_osBoxes)
        osBox.box->installEventFilter(this);
}

void ControlForm::connectMenus()
{
    connect(ui.menuFileSave, &QAction::triggered, this, [this] {
        moveFocusTo(*ui.FileSaver);
        saveAndReopen();
    });
    connect(ui.menuFileSaveXML, &QAction::triggered, this, &ControlForm::saveXml);
    connect(ui.menuFileReset, &QAction::triggered, this, [this] {
        ui.SaveWarning->show();
        moveFocusTo(*ui.FileReset);
        reset();
    });
    connect(ui.menuGenerate, &QAction::triggered, this, &ControlForm::generateReport);
    connect(ui.menuFileExit, &QAction::triggered, this, &ControlForm::close);
    connect(ui.menuImageOpen, &QAction::triggered, this, [this] { runVerb(Verb::Open); });
    connect(ui.menuImageProps, &QAction::triggered, this, [this] { runVerb(Verb::Properties); });
    connect(ui.menuHelpAbout, &QAction::triggered, this, [this] { AboutForm(this).exec(); });
    connect(ui.menuHelpContents, &QAction::triggered, this, [this] {
        HelpContents(m_surroundings.desktop, m_surroundings.dialogs, m_surroundings.folders.data + "help/index.html");
    });
}

void ControlForm::loadSettings()
{
    const Settings& settings = m_surroundings.settings;
    const QString folder = pathText(m_surroundings.folders.data);
    const QString folderWithoutSeparator = folder.chopped(1);
    PlacementLoad(*this, settings, objectName(), QStringLiteral("0,0,11655,8505"));
    for (const SplitterSetting& setting : kSplitterSettings)
        splitterLoad(*(ui.*setting.splitter), settings, QLatin1String(setting.whenMissing));
    loadKeywords(toPath(settings.GetSetting(QStringLiteral("Keywords"), folder + QStringLiteral("keywords.txt"))));
    m_scan = loadScanSettings(settings, folderWithoutSeparator);
    for (const OptionSetting& option : kOptionSettings)
        (ui.*option.item)->setChecked(settings.choice(QLatin1String(option.key), option.whenMissing));
}

void ControlForm::saveSettings()
{
    Settings& settings = m_surroundings.settings;
    PlacementSave(*this, settings, objectName());
    for (const SplitterSetting& setting : kSplitterSettings)
        splitterSave(*(ui.*setting.splitter), settings);
    saveScanSettings(m_scan, settings);
    for (const OptionSetting& option : kOptionSettings)
        settings.saveChoice(QLatin1String(option.key), (ui.*option.item)->isChecked());
}

bool ControlForm::start(const std::vector<std::string>& paths)
{
    if (paths.empty())
        return findFiles();
    show();
    findFilesAmong(paths);
    return true;
}

void ControlForm::closeEvent(QCloseEvent* event)
{
    if (auto* show = findChild<SlideForm*>())
        show->close();
    moveFocusTo(*ui.FileFinder);
    if (OfferSave(true) == SaveResult::Failed) {
        // What could not be saved is not thrown away by closing. Whoever wants that answers No.
        MarkChanged();
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
            paths.push_back(toPath(url.toLocalFile()));
    }
    if (paths.empty())
        return;
    event->setDropAction(Qt::CopyAction);
    event->accept();
    // Later, as a question now would keep the program waiting that the files came from.
    QTimer::singleShot(0, this, [this, paths] {
        moveFocusTo(*ui.FileFinder);
        findFilesAmong(paths);
    });
}

bool ControlForm::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::FocusOut:
        if (isLeaving(*static_cast<QFocusEvent*>(event)))
            leaveBox(watched);
        break;
    case QEvent::KeyPress:
        if (watched == ui.KeywordList && isEnter(*static_cast<QKeyEvent*>(event))) {
            insertKeyword();
            return true;
        }
        break;
    case QEvent::DragEnter:
        // Files dropped on a box are for the window.
        if (static_cast<QDragEnterEvent*>(event)->mimeData()->hasUrls()) {
            event->ignore();
            return true;
        }
        break;
    default:
        break;
    }
    return QMainWindow::eventFilter(watched, event);
}

/// Leaves the box being edited for `control`.
void ControlForm::moveFocusTo(QWidget& control)
{
    const QWidget* left = focusWidget();
    control.setFocus();
    // In a window that is not in front, the focus moves without an event that says so.
    if (!isActiveWindow() && left != focusWidget())
        leaveBox(left);
}

int ControlForm::selectedFile() const
{
    const QModelIndexList selected = ui.FilesFoundList->selectionModel()->selectedIndexes();
    return selected.isEmpty() ? -1 : selected.first().row();
}

/// Selects the file in `row`, also when it is selected already, and opens it.
void ControlForm::selectFile(int row)
{
    {
        const QScopedValueRollback updating(ControlsUpdating, true);
        ui.FilesFoundList->setCurrentIndex(m_found.index(row));
    }
    OpenSelectedFile();
}

/// Selects the file shown again, where the selection was taken back: there is always one while a file is shown.
void ControlForm::selectShownFile()
{
    const QScopedValueRollback updating(ControlsUpdating, true);
    const QModelIndex shown = ui.FilesFoundList->currentIndex();
    if (selectedFile() < 0 && shown.isValid())
        ui.FilesFoundList->selectionModel()->select(shown, QItemSelectionModel::ClearAndSelect);
}

void ControlForm::pickFile(QWidget& button, std::optional<int> (FoundFiles::*neighbour)(int) const)
{
    moveFocusTo(button);
    selectShownFile();
    const SaveResult saved = OfferSave(false);
    if (saved == SaveResult::Failed)
        return;
    if (const auto row = (m_found.*neighbour)(selectedFile()))
        selectFile(*row);
    else if (saved == SaveResult::Saved)
        OpenSelectedFile();
}

void ControlForm::showSlideShowOptions()
{
    auto* form = findChild<SlideShowOptionForm*>();
    if (form == nullptr)
        form = new SlideShowOptionForm(
            {m_found, *ui.FilesFoundList->selectionModel(), m_surroundings.dialogs, m_surroundings.settings}, this);
    form->show();
    form->activateWindow();
}

void ControlForm::runVerb(Verb verb)
{
    if (!CurrentFileName.empty())
        ShellVerb(m_surroundings.desktop, CurrentFileName, *this, verb);
}

} // namespace ovisto
