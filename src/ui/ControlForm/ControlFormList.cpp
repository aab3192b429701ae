// The part of the main window that finds files, and works on all of them.

#include "ui/ControlForm/ControlForm.h"

#include "collection/BatchAction.h"
#include "collection/FolderScan.h"
#include "collection/Report.h"
#include "ui/App/Text.h"
#include "ui/BatchForm/BatchForm.h"
#include "ui/BatchForm/BatchWatch.h"
#include "ui/BrowserCapForm/BrowserCapForm.h"
#include "ui/ControlForm/FailureMessages.h"
#include "ui/ControlForm/NamedFiles.h"
#include "ui/ControlForm/ScanReports.h"
#include "ui/ProgressForm/ProgressForm.h"

#include <QScopedValueRollback>

#include <optional>
#include <utility>

namespace ovisto {

/// Runs `loop`, which takes its time with many files, and shows how far it is. Nothing else can be done meanwhile.
template <class Loop> void ControlForm::runWatched(Loop loop)
{
    ProgressForm progress(this);
    setCursor(Qt::WaitCursor);
    loop(progress);
    unsetCursor();
}

/// Lets a folder be chosen, and lists the files in it. Returns false when the person cancels.
bool ControlForm::findFiles()
{
    {
        BrowserCapForm chooser(m_scan, this);
        chooser.exec();
        if (chooser.Cancelled())
            return false;
        m_scan = chooser.settings();
    }
    show();
    activateWindow();
    scanFolder();
    return true;
}

void ControlForm::scanFolder()
{
    if (!leaveShownFile())
        return;
    std::optional<FolderScan> scan;
    ErrorTrap trap;
    trap.run([&] { scan.emplace(scanOptions(m_scan)); });
    if (trap.pending())
        return m_surroundings.dialogs.show(toQString(Message::FolderNotFound));
    std::vector<std::string> found;
    clearList();
    ScanReports reports(m_reporter);
    runWatched([&](ProgressForm& progress) {
        progress.show();
        scan->run(found, progress, reports);
    });
    listFiles(std::move(found), reports);
}

/// Lists the files named, and those in the folders named, whatever they contain.
void ControlForm::findFilesAmong(const std::vector<std::string>& names)
{
    if (!leaveShownFile())
        return;
    ScanOptions options = scanOptions(m_scan);
    options.content = {};
    std::vector<std::string> found;
    clearList();
    ScanReports reports(m_reporter);
    runWatched([&](ProgressForm& progress) { found = namedFiles(names, options, progress, reports); });
    listFiles(std::move(found), reports);
}

/// Takes all files out of the list, unless those to be found are to be added to them.
void ControlForm::clearList()
{
    const QScopedValueRollback updating(ControlsUpdating, true);
    if (!m_scan.ListAppend)
        m_found.clear();
}

void ControlForm::listFiles(std::vector<std::string> found, const ScanReports& reports)
{
    if (!reports.notReadToo().empty())
        m_surroundings.dialogs.show(notReadMessage(reports.notReadToo()));
    {
        const QScopedValueRollback updating(ControlsUpdating, true);
        m_found.append(std::move(found));
    }
    if (m_found.rowCount() > 0)
        selectFile(0); // which leaves none when none of them is there any more
    if (m_found.rowCount() == 0)
        m_surroundings.dialogs.show(toQString(Message::NoFilesFound));
    ui.FilesFoundList->setToolTip(toQString(Phrase(Message::FilesFound, std::to_string(m_found.paths().size()))));
}

void ControlForm::showBatch()
{
    moveFocusTo(*ui.BatchShower);
    if (!leaveShownFile())
        return;
    if (m_batch == nullptr || !m_batch->isVisible()) { // one that was closed may not be gone yet
        m_batch = new BatchForm(Merovel, ui.menuShowTechnical->isChecked(), m_surroundings.dialogs, this);
        m_batch->setAttribute(Qt::WA_DeleteOnClose);
        connect(m_batch, &BatchForm::started, this, &ControlForm::runBatch);
    }
    m_batch->show();
    m_batch->activateWindow();
}

/// Makes a change to all files listed.
void ControlForm::runBatch(const NodeChange& change)
{
    // A file that was opened since must not be saved over what the batch makes of it.
    moveFocusTo(*ui.BatchShower);
    if (!leaveShownFile())
        return;
    std::vector<FileFailure> notChanged;
    runWatched([&](ProgressForm& progress) {
        progress.show();
        BatchWatch watch(progress, m_reporter);
        BatchAction(m_found.paths(), change).run(watch, watch);
        notChanged = watch.failedToo();
    });
    if (!notChanged.empty())
        m_surroundings.dialogs.show(notChangedMessage(notChanged));
    m_batch->close();
    OpenSelectedFile();
}

void ControlForm::generateReport()
{
    moveFocusTo(*ui.FileFinder);
    if (!settleChanges())
        return;
    const auto styleSheet = m_surroundings.dialogs.chooseFile(tr("Open Report"), pathText(m_surroundings.folders.data),
                                                              tr("XSL (*.xsl *.XSL);;All Files (*.*) (*)"));
    if (!styleSheet)
        return;
    const ReportOptions options{
        .styleSheet = toPath(*styleSheet), .folder = m_surroundings.folders.writable, .keep = keepOptions()};
    ReportResult report;
    runWatched([&](ProgressForm& progress) { report = makeReport(m_found.paths(), options, progress, m_reporter); });
    if (!report.leftOut.empty())
        m_surroundings.dialogs.show(leftOutMessage(report.leftOut));
    if (!report.path.empty() && !ShellVerb(m_surroundings.desktop, report.path, *this, Verb::Open))
        ErrorReport(m_reporter, "Open " + report.path, {kInvalidCall, "No program was found that opens it"});
}

} // namespace ovisto
