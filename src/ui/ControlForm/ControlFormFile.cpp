// The part of the main window that opens the file shown, keeps track of its changes, and saves it.

#include "ui/ControlForm/ControlForm.h"

#include "collection/XmlExport.h"
#include "common/text/PathText.h"
#include "common/xml/XmlLoad.h"
#include "ui/App/Text.h"
#include "writer/JpegDocument.h"

#include <QScopedValueRollback>

namespace ovisto {

void ControlForm::OpenSelectedFile()
{
    m_selection.stop();
    if (!leaveShownFile() || !findSelectedFile())
        return;
    clearChanged();
    const QScopedValueRollback updating(ControlsUpdating, true);
    readDocument();
    RebuildTree();
    showPicture();
    enableEditing(true);
    ui.NodeTree->setFocus();
}

/// What could not be saved stays in the window, as changed as it was. The list shows again whose it is.
void ControlForm::keepShownFile()
{
    MarkChanged();
    const QScopedValueRollback updating(ControlsUpdating, true);
    if (const auto row = m_found.rowOf(CurrentFileName))
        ui.FilesFoundList->setCurrentIndex(m_found.index(*row));
}

/// Makes the file selected in the list the file shown. Files that are not there any more leave the list, and the one
/// that takes their place is selected. Returns false when none is left, or none is selected.
bool ControlForm::findSelectedFile()
{
    const QScopedValueRollback updating(ControlsUpdating, true);
    int row = selectedFile();
    if (row < 0)
        return false;
    while (const int missing = m_found.missingFrom(row)) {
        m_found.remove(row, missing);
        if (m_found.rowCount() == 0)
            return false;
        row = row < m_found.rowCount() ? row : 0;
    }
    ui.FilesFoundList->setCurrentIndex(m_found.index(row));
    CurrentFileName = m_found.path(row);
    setWindowTitle(pathText(splitPath(CurrentFileName).name) + QStringLiteral("[*]"));
    return true;
}

void ControlForm::readDocument()
{
    const Translation translation = JpegXml().XMLtranslate(CurrentFileName, keepOptions());
    if (translation.ChangesMade)
        MarkChanged();
    if (translation.error)
        ErrorReport(m_reporter, "", *translation.error);
    ErrorTrap trap;
    trap.run([&] {
        if (const auto error = JpegDoc.loadText(translation.text))
            ErrorReport(m_reporter, parseErrorText(*error), {});
    });
    if (trap.pending())
        ErrorReport(m_reporter, "loadXML", trap.take());
}

void ControlForm::showPicture()
{
    ui.Image1->showFile(CurrentFileName, m_reporter);
}

/// Offers to save the file shown, which stays. Returns false when its changes could not be saved.
bool ControlForm::settleChanges()
{
    const SaveResult saved = OfferSave(true);
    if (saved == SaveResult::Saved)
        OpenSelectedFile();
    else if (saved == SaveResult::Failed)
        keepShownFile();
    return saved != SaveResult::Failed;
}

/// Shows no file any more, its changes saved if the person wants that. Returns false when they could not be saved: the
/// file is still shown then.
bool ControlForm::leaveShownFile()
{
    if (OfferSave(true) == SaveResult::Failed) {
        keepShownFile();
        return false;
    }
    clearShownFile();
    return true;
}

/// No file is shown from now on, and none can be edited.
void ControlForm::clearShownFile()
{
    const QScopedValueRollback updating(ControlsUpdating, true);
    clearPanes();
    JpegDoc = XmlDocument();
    CurrentFileName.clear();
    setWindowTitle(QStringLiteral("Ovisto[*]"));
    enableEditing(false);
}

void ControlForm::clearPanes()
{
    const QScopedValueRollback updating(ControlsUpdating, true);
    CurrentNode = {};
    CurrentProt = 0;
    m_osProperties = {};
    ui.TreeStack->setCurrentWidget(ui.TreeHint);
    ui.NodeTree->clear();
    ui.Image1->clear();
    ui.Image2->clear();
    ui.FileTitle->clear();
    ui.FileSubject->clear();
    ui.FileComments->putText({});
    ui.FileKeywords->putText({});
    ui.NodeID->clear();
    ui.NodeDataType->clear();
    ui.NodeHelp->clear();
    ui.NodeText->putText({});
    ui.NodeText->setReadOnly(false);
    ui.ValueStack->setCurrentWidget(ui.NodeText);
    ui.ViewHexOpt->setChecked(false);
    ui.NodeDeleter->setEnabled(false);
}

void ControlForm::enableEditing(bool enabled)
{
    QWidget* const controls[] = {ui.FileTitle,      ui.FileSubject, ui.FileComments, ui.FileKeywords,
                                 ui.FilePropPaster, ui.FileSaver,   ui.FileReset,    ui.NodeTree,
                                 ui.NodeText,       ui.NodeHelp,    ui.ViewHexOpt,   ui.NodeAdder};
    for (QWidget* control : controls)
        control->setEnabled(enabled);
    QAction* const items[] = {ui.menuFileSave, ui.menuFileSaveXML, ui.menuFileReset, ui.menuImageOpen,
                              ui.menuImageProps};
    for (QAction* item : items)
        item->setEnabled(enabled);
}

KeepOptions ControlForm::keepOptions() const
{
    return {.pCodifyMakerNote = ui.menuDecodeMaker->isChecked(),
            .pCodifyThumb = ui.menuDecodeThumb->isChecked(),
            .pCodifyExif1 = ui.menuDecodeExif1->isChecked()};
}

void ControlForm::MarkChanged()
{
    ui.SaveWarning->show();
    ChangesMade = true;
    setWindowModified(true);
}

void ControlForm::clearChanged()
{
    ChangesMade = false;
    ui.SaveWarning->hide();
    setWindowModified(false);
}

/// Saves the file shown if it was changed; with `ask`, if the person wants that.
ControlForm::SaveResult ControlForm::OfferSave(bool ask)
{
    leaveFocusedBox();
    for (const OsBox& osBox : m_osBoxes)
        *osBox.dittoText = boxText(*osBox.box);
    if (!ChangesMade)
        return SaveResult::NotSaved;
    if (!ask || m_surroundings.dialogs.ask(tr("Save Changes to file %1?").arg(pathText(CurrentFileName))))
        return SaveDocument();
    clearChanged();
    return SaveResult::NotSaved;
}

ControlForm::SaveResult ControlForm::SaveDocument()
{
    setCursor(Qt::WaitCursor);
    ErrorTrap trap;
    trap.run([&] { JpegDocument(m_reporter).WriteJpeg(JpegDoc, CurrentFileName); });
    // Whatever became of it, the file does not count as changed any more: of all error numbers, only -1 would keep the
    // mark.
    const int number = trap.pending() ? trap.error().number : 0;
    if (~number != 0)
        clearChanged();
    unsetCursor();
    return trap.pending() ? SaveResult::Failed : SaveResult::Saved;
}

/// Saves the file shown, changed or not. It is opened again then, as its image data may have moved.
void ControlForm::saveAndReopen()
{
    leaveFocusedBox();
    selectShownFile();
    if (SaveDocument() == SaveResult::Saved)
        OpenSelectedFile();
}

void ControlForm::saveXml()
{
    moveFocusTo(*ui.FileSaver);
    if (!settleChanges())
        return;
    setCursor(Qt::WaitCursor);
    ErrorTrap trap; // what goes wrong has been reported when it gets here
    trap.run([&] { exportDocument(JpegDoc, CurrentFileName, m_reporter); });
    unsetCursor();
}

/// Opens the file anew, without its changes.
void ControlForm::reset()
{
    leaveFocusedBox();
    selectShownFile();
    clearChanged();
    OpenSelectedFile();
    if (ChangesMade)
        m_surroundings.dialogs.show(tr("All previous edits have been ignored, except for\r\n"
                                       "nodes removed according to the Options menu."));
}

} // namespace ovisto
