// SPDX-License-Identifier: MIT

#include "ui/ControlForm/Editor.h"

#include "collection/XmlExport.h"
#include "common/KeptReports.h"
#include "common/text/PathText.h"
#include "ui/App/Text.h"
#include "ui/PrivateForm/PrivateForm.h"

#include <QScopedValueRollback>

namespace ovisto {

using SaveResult = ShownFile::SaveResult;

namespace {

QString windowTitle(const std::string& path)
{
    // Where a name has the place of the mark of changes, it is doubled to mean itself.
    QString name = pathText(splitPath(path).name);
    name.replace(QStringLiteral("[*]"), QStringLiteral("[*][*]"));
    return name + QStringLiteral("[*] - Ovisto");
}

} // namespace

Editor::Editor(const WindowParts& parts)
    : m_parts(parts), ui(parts.ui), ControlsUpdating(parts.ControlsUpdating),
      m_file(parts.Merovel, parts.reporter, *this), m_list(parts, m_file), m_osPane(parts, m_file),
      m_properties(parts, m_file), m_savedLine(parts.window), m_leftOutLine(parts)
{
    connect(&m_list, &FileListPane::selected, this, &Editor::OpenSelectedFile);
    connect(&m_properties, &PropertyPane::nodeAdded, this, &Editor::nodeAdded);
    connect(&m_properties, &PropertyPane::nodeDeleted, &m_osPane, &OsPane::showTexts);
    connect(ui.FileSaver, &QPushButton::clicked, this, &Editor::saveAndReopen);
    connect(ui.FileReset, &QPushButton::clicked, this, &Editor::reset);
    connect(ui.Image1, &PictureBox::clicked, this,
            [this](Qt::MouseButton button) { runVerb(button == Qt::LeftButton ? Verb::Open : Verb::Properties); });
    const int markSize = ui.SaveWarning->style()->pixelMetric(QStyle::PM_SmallIconSize);
    ui.SaveWarning->setPixmap(ui.SaveWarning->style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(markSize));
    ui.SaveWarning->hide();
    clearShownFile();
}

KeepOptions Editor::keepOptions() const
{
    return {.pCodifyMakerNote = ui.menuDecodeMaker->isChecked(),
            .pCodifyThumb = ui.menuDecodeThumb->isChecked(),
            .pCodifyExif1 = ui.menuDecodeExif1->isChecked(),
            .reading = reading()};
}

Reading Editor::reading() const
{
    const bool readsEverything = ui.menuReadEverything->isChecked() && writingWay() == WritingWay::Keep;
    return readsEverything ? Reading::Full : Reading::Basic;
}

WritingWay Editor::writingWay() const
{
    return ui.menuKeepUntouched->isChecked() ? WritingWay::Keep : WritingWay::Rebuild;
}

void Editor::OpenSelectedFile()
{
    m_list.settle();
    if (!leaveShownFile())
        return;
    m_savedLine.opening();
    const auto path = m_list.existingSelection();
    if (!path)
        return;
    const QScopedValueRollback updating(ControlsUpdating, true);
    m_parts.window.setWindowTitle(windowTitle(*path));
    m_leftOutLine.opening();
    m_file.open(*path, keepOptions(), writingWay());
    if (const auto& reason = m_file.whyUnreadable())
        return showUnreadable(*reason);
    RebuildTree();
    showPicture();
    enableEditing(true);
    ui.NodeTree->setFocus();
}

void Editor::openIfNone()
{
    if (!m_file.isOpen())
        OpenSelectedFile();
}

/// Shows why the file cannot be edited. The reason was reported already; a missing picture is not reported as well.
void Editor::showUnreadable(const Phrase& reason)
{
    m_properties.showReason(
        toQString(reason).replace(pathText(m_file.path()), pathText(splitPath(m_file.path()).name)));
    KeptReports unheard;
    ui.Image1->showFile(m_file.path(), unheard);
    enableEditing(false);
    ui.FilesFoundList->setFocus();
}

bool Editor::leaveShownFile()
{
    const SaveResult saved = OfferSave(true);
    if (saved == SaveResult::Failed)
        m_list.select(m_file.path());
    if (saved == SaveResult::GivenUp)
        openAgain();
    if (saved == SaveResult::Failed || saved == SaveResult::GivenUp)
        return false;
    clearShownFile();
    return true;
}

bool Editor::settleChanges()
{
    const bool wasChanged = m_file.isChanged();
    const SaveResult saved = OfferSave(true);
    if (saved == SaveResult::NotSaved && wasChanged)
        m_file.MarkChanged(); // the document stays open, and what was typed is neither saved nor given up
    if (saved == SaveResult::Saved)
        OpenSelectedFile();
    else if (saved == SaveResult::Failed)
        m_list.select(m_file.path());
    else if (saved == SaveResult::GivenUp)
        openAgain();
    return saved != SaveResult::Failed;
}

/// Saves the file shown if it was changed; with `ask`, if the person wants that.
SaveResult Editor::OfferSave(bool ask)
{
    m_parts.boxes.leaveFocused();
    m_osPane.keepTexts();
    return m_file.OfferSave(ask);
}

void Editor::step(std::optional<int> (FoundFiles::*neighbour)(int) const)
{
    m_list.selectShownFile();
    const SaveResult saved = OfferSave(false);
    if (saved == SaveResult::Failed)
        return;
    if (saved == SaveResult::GivenUp)
        return OpenSelectedFile();
    if (const auto row = (m_list.files().*neighbour)(m_list.selectedRow()))
        m_list.open(*row);
    else if (saved == SaveResult::Saved)
        OpenSelectedFile();
}

void Editor::saveAndReopen()
{
    m_parts.boxes.leaveFocused();
    m_list.selectShownFile();
    if (m_file.SaveDocument() != SaveResult::Failed)
        OpenSelectedFile();
}

void Editor::openAgain()
{
    m_list.select(m_file.path());
    OpenSelectedFile();
}

void Editor::saveXml()
{
    if (!settleChanges() || !m_file.saveXml())
        return;
    m_savedLine.show(tr("Metadata saved as %1").arg(shownPath(splitPath(exportPath(m_file.path())).name)));
    m_savedLine.opening(); // the next file is another matter
}

void Editor::reset()
{
    m_parts.boxes.leaveFocused();
    m_list.selectShownFile();
    m_file.clearChanged();
    OpenSelectedFile();
    if (m_file.isChanged())
        m_parts.surroundings.dialogs.inform(tr("All previous edits have been ignored, except for\r\n"
                                               "nodes removed according to the Options menu."));
}

void Editor::readAgain()
{
    m_parts.boxes.leaveFocused();
    m_list.selectShownFile();
    if (m_file.isChanged()) {
        const QStringList answers{tr("&Discard"), QCoreApplication::translate("QPlatformTheme", "Cancel")};
        const QString question = tr("Discard the changes to file %1 and read it again?");
        if (m_parts.surroundings.dialogs.choose(question.arg(shownPath(m_file.path())), answers) != 0)
            return;
        m_file.clearChanged();
    }
    OpenSelectedFile();
}

void Editor::runVerb(Verb verb)
{
    if (m_file.isOpen())
        ShellVerb(m_parts.surroundings.desktop, m_file.path(), m_parts.window, verb);
}

void Editor::showPrivate()
{
    m_parts.boxes.leaveFocused();
    if (!m_file.isOpen())
        return;
    Dialogs& dialogs = m_parts.surroundings.dialogs;
    if (readingOf(m_file.document().node()) == Reading::Basic) {
        dialogs.inform(tr("Everything has to be read first. Switch on \"Keep Untouched Data?\" and\r\n"
                          "\"Read Everything?\" in the Options menu, and open the file again."));
        return;
    }
    std::optional<PrivateList> list;
    if (!attempt(m_parts.reporter, m_file.path(), [&] { list.emplace(m_file, m_parts.Merovel); }))
        return;
    if (list->findings().empty())
        return dialogs.inform(sentence(toQString(Message::TellsNothing)));
    if (PrivateForm(*list, &m_parts.window).exec() != QDialog::Accepted)
        return;
    RebuildTree();
    showPicture();
}

bool Editor::wantsToSave(const std::string& path)
{
    return m_parts.surroundings.dialogs.ask(tr("Save Changes to file %1?").arg(shownPath(path)));
}

ShownFile::OtherChange Editor::askAboutOtherChange(const std::string& path)
{
    using OtherChange = ShownFile::OtherChange;
    constexpr OtherChange kAnswers[] = {OtherChange::SaveOver, OtherChange::ReadAgain, OtherChange::Cancel};
    const int answer = m_parts.surroundings.dialogs.choose(
        tr("Another program changed the file %1 after it was opened here.\r\n\r\n"
           "Save Over It: the file gets all values as they are shown here.\r\n"
           "Read It Again: what you changed here is given up, and the file is shown as it is now.")
            .arg(shownPath(path)),
        {tr("&Save Over It"), tr("&Read It Again"), QCoreApplication::translate("QPlatformTheme", "Cancel")});
    return kAnswers[answer];
}

void Editor::showChanged(bool changed)
{
    ui.SaveWarning->setVisible(changed);
    m_parts.window.setWindowModified(changed);
}

void Editor::showBusy(bool busy)
{
    if (busy)
        m_parts.window.setCursor(Qt::WaitCursor);
    else
        m_parts.window.unsetCursor();
}

void Editor::showFailedNode(const std::string& nodePath)
{
    showNode(nodePath);
}

/// Selects a node, and puts the caret into its box.
void Editor::showNode(const std::string& nodePath)
{
    if (!m_osPane.focusBoxOf(nodePath))
        m_properties.select(nodePath);
}

void Editor::showSaved(const std::string& path, const std::optional<SaveReceipt>& receipt)
{
    if (!receipt)
        return m_savedLine.clear();
    SaveReceipt shown = *receipt;
    shown.originalName = splitPath(shown.originalName).name; // it is in the folder of the photograph
    QStringList sentences(shown.losses.empty()
                              ? tr("%1 saved: %2").arg(shownPath(splitPath(path).name), toQString(summary(shown)))
                              : tr("Lost, as \"Keep Untouched Data?\" is off: %1").arg(toQString(lossSummary(shown))));
    for (const Phrase& note : shown.notes)
        sentences << toQString(note);
    m_savedLine.show(sentences.join(u' '));
}

void Editor::RebuildTree()
{
    const QScopedValueRollback updating(ControlsUpdating, true);
    clearPanes();
    std::vector<Leaf> leaves;
    ErrorTrap trap;
    trap.run([&] { leaves = m_file.loadTree(ui.menuShowTechnical->isChecked(), m_properties.words()); });
    m_osPane.showTexts();
    if (trap.pending())
        return ErrorReport(m_parts.reporter, Message::DocumentNotShown, trap.take());
    m_properties.showTree(leaves);
}

void Editor::nodeAdded(const std::string& nodePath)
{
    RebuildTree();
    showPicture();
    showNode(nodePath);
}

void Editor::showPicture()
{
    ui.Image1->showFile(m_file.path(), m_parts.reporter);
}

/// No file is shown from now on, and none can be edited.
void Editor::clearShownFile()
{
    clearPanes();
    m_file.close();
    m_leftOutLine.closed();
    m_parts.window.setWindowTitle(QStringLiteral("Ovisto[*]"));
    enableEditing(false);
}

void Editor::clearPanes()
{
    const QScopedValueRollback updating(ControlsUpdating, true);
    m_properties.clear();
    m_osPane.clear();
    ui.Image1->clear();
}

void Editor::enableEditing(bool enabled)
{
    const QScopedValueRollback updating(ControlsUpdating, true);
    QWidget* const controls[] = {ui.FileTitle, ui.FileSubject, ui.FileComments, ui.FileKeywords, ui.FilePropPaster,
                                 ui.FileSaver, ui.KeywordList, ui.NodeTree,     ui.NodeText,     ui.NodeChoice,
                                 ui.NodeHelp,  ui.ViewHexOpt,  ui.NodeAdder};
    for (QWidget* control : controls)
        control->setEnabled(enabled);
    for (QAction* item : {ui.menuFileSave, ui.menuFileSaveXML, ui.menuPrivate})
        item->setEnabled(enabled);
    // What can be done with any file shown, even one that cannot be read.
    ui.FileReset->setEnabled(m_file.isOpen());
    for (QAction* item : {ui.menuFileReset, ui.menuImageOpen, ui.menuImageProps})
        item->setEnabled(m_file.isOpen());
}

} // namespace ovisto
