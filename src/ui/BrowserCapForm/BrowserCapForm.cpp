// SPDX-License-Identifier: MIT

#include "ui/BrowserCapForm/BrowserCapForm.h"

#include "ui/App/RecentFolders.h"
#include "ui/App/RecentMenu.h"
#include "ui/App/Text.h"

#include <QDir>
#include <QScopedValueRollback>
#include <QStyle>

namespace ovisto {

BrowserCapForm::BrowserCapForm(const ScanSettings& scan, Settings& settings, Dialogs& dialogs, QWidget* owner)
    : QDialog(owner), m_dialogs(dialogs)
{
    ui.setupUi(this);
    ui.FirstHint->setVisible(!wasFolderChosen(settings));
    ui.FolderRecent->setMenu(&m_recent);
    connect(new RecentMenu(m_recent, settings), &RecentMenu::chosen, this, [this](const QString& folder) {
        ui.FolderTree->select(folder);
        ui.FolderTree->setFocus();
    });
    ui.FolderUp->setIcon(style()->standardIcon(QStyle::SP_FileDialogToParent));
    ui.FolderHome->setIcon(style()->standardIcon(QStyle::SP_DirHomeIcon));
    connect(ui.FolderTree, &FolderTree::SelectionChanged, this, &BrowserCapForm::selectionChanged);
    connect(ui.FolderPath, &QLineEdit::textEdited, this, &BrowserCapForm::folderTyped);
    connect(ui.FolderUp, &QToolButton::clicked, this,
            [this] { ui.FolderTree->select(QFileInfo(m_selectedFolder).path()); });
    connect(ui.FolderHome, &QToolButton::clicked, this, [this] { ui.FolderTree->select(QDir::homePath()); });
    connect(ui.FolderSelector, &QPushButton::clicked, this, &BrowserCapForm::selectFolder);
    connect(ui.FormCanceller, &QPushButton::clicked, this, &BrowserCapForm::reject);
    setSettings(scan);
    ui.FolderTree->setFocus();
}

void BrowserCapForm::setSettings(const ScanSettings& scan)
{
    ui.FolderTree->select(QDir::cleanPath(scan.FolderNameSelected));
    ui.FilePattern->setText(scan.FilePattern);
    ui.SearchWords->setText(scan.SearchWords);
    ui.SubFolderScanOpt->setChecked(scan.SubFolderScan);
    ui.ListAppendOpt->setChecked(scan.ListAppend);
    ui.SearchAllWordsOpt->setChecked(scan.SearchAllWords);
    ui.SearchWordsWholeOpt->setChecked(scan.SearchWordsWhole);
    ui.SearchRegExpOpt->setChecked(scan.SearchRegExp);
    ui.SearchValuesOpt->setChecked(scan.searchValues);
}

ScanSettings BrowserCapForm::settings() const
{
    return {.FolderNameSelected = SelectedFolder(),
            .SubFolderScan = ui.SubFolderScanOpt->isChecked(),
            .ListAppend = ui.ListAppendOpt->isChecked(),
            .FilePattern = ui.FilePattern->text(),
            .SearchWords = ui.SearchWords->text(),
            .SearchAllWords = ui.SearchAllWordsOpt->isChecked(),
            .SearchWordsWhole = ui.SearchWordsWholeOpt->isChecked(),
            .SearchRegExp = ui.SearchRegExpOpt->isChecked(),
            .searchValues = ui.SearchValuesOpt->isChecked()};
}

void BrowserCapForm::selectionChanged(const QString& folder)
{
    ui.FolderUp->setEnabled(!QDir(folder).isRoot());
    if (m_typing)
        return;
    m_selectedFolder = folder;
    ui.FolderPath->setText(QDir::toNativeSeparators(folder));
}

void BrowserCapForm::folderTyped(const QString& text)
{
    if (text.isEmpty()) { // nothing typed: what is selected counts
        m_selectedFolder = ui.FolderTree->selected();
        return;
    }
    const QScopedValueRollback typing(m_typing, true);
    m_selectedFolder = typedFolder(text);
    ui.FolderTree->select(m_selectedFolder);
}

/// Ends the choice, unless nothing can be searched for in the way chosen: what is listed stays until that is put right.
void BrowserCapForm::selectFolder()
{
    const Phrase reason = objection(scanOptions(settings(), {}).content);
    if (reason.isEmpty())
        return accept();
    m_dialogs.show(toQString(reason));
    focusWords();
}

void BrowserCapForm::focusWords()
{
    ui.SearchWords->setFocus();
    ui.SearchWords->selectAll();
}

} // namespace ovisto
