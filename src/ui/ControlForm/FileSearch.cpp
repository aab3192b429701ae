// SPDX-License-Identifier: MIT

#include "ui/ControlForm/FileSearch.h"

#include "collection/FolderScan.h"
#include "ui/App/RecentFolders.h"
#include "ui/App/Text.h"
#include "ui/BrowserCapForm/BrowserCapForm.h"
#include "ui/ControlForm/FailureMessages.h"
#include "ui/ControlForm/ScanReports.h"
#include "ui/ProgressForm/ProgressForm.h"

#include <QScopedValueRollback>

#include <optional>
#include <utility>

namespace ovisto {

bool FileSearch::findFiles(Start start)
{
    {
        const Surroundings& around = m_parts.surroundings;
        BrowserCapForm chooser(settings, around.settings, around.dialogs, &m_parts.window);
        if (start == Start::Words)
            chooser.focusWords();
        chooser.exec();
        if (chooser.Cancelled())
            return false;
        settings = chooser.settings();
    }
    m_parts.window.show();
    m_parts.window.activateWindow();
    scanFolder();
    return true;
}

void FileSearch::scanFolder()
{
    if (!m_editor.leaveShownFile())
        return;
    std::optional<FolderScan> scan;
    ErrorTrap trap;
    trap.run([&] { scan.emplace(scanOptions(settings, values())); });
    if (trap.pending())
        return m_parts.surroundings.dialogs.show(toQString(Message::FolderNotFound));
    rememberFolder(settings.FolderNameSelected, m_parts.surroundings.settings);
    std::vector<std::string> found;
    clearList();
    ScanReports reports(m_parts.reporter);
    runWatched(m_parts.window, [&](ProgressForm& progress) {
        progress.show();
        scan->run(found, progress, reports);
    });
    listFiles({std::move(found), {}}, reports);
}

void FileSearch::openRecent(const QString& folder)
{
    settings.FolderNameSelected = folder;
    const QScopedValueRollback insteadOfTheList(settings.ListAppend, false);
    rememberFolder(folder, m_parts.surroundings.settings);
    findFilesAmong({toPath(folder)});
}

ValueTexts FileSearch::values() const
{
    return {.dictionary = &m_parts.Merovel, .words = &m_words};
}

void FileSearch::findFilesAmong(const std::vector<std::string>& names)
{
    if (!m_editor.leaveShownFile())
        return;
    ScanOptions options = scanOptions(settings, {});
    options.content = {};
    NamedFiles files;
    clearList();
    ScanReports reports(m_parts.reporter);
    runWatched(m_parts.window, [&](ProgressForm& progress) { files = namedFiles(names, options, progress, reports); });
    listFiles(std::move(files), reports);
}

/// Takes all files out of the list, unless those to be found are to be added to them.
void FileSearch::clearList()
{
    if (!settings.ListAppend)
        m_editor.list().clear();
}

void FileSearch::listFiles(NamedFiles files, const ScanReports& reports)
{
    if (!files.missing.empty())
        m_parts.surroundings.dialogs.show(missingMessage(files.missing));
    if (!reports.notReadToo().empty())
        m_parts.surroundings.dialogs.show(notReadMessage(reports.notReadToo()));
    FileListPane& list = m_editor.list();
    list.append(std::move(files.found));
    if (list.files().rowCount() > 0)
        list.open(0); // which leaves none when none of them is there any more
    if (list.files().rowCount() == 0 && files.missing.empty())
        m_parts.surroundings.dialogs.inform(toQString(Message::NoFilesFound));
    list.showCount();
}

} // namespace ovisto
