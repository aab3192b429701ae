// SPDX-License-Identifier: MIT

#include "ui/ControlForm/ListActions.h"

#include "collection/BatchAction.h"
#include "collection/Report.h"
#include "ui/App/LocaleWords.h"
#include "ui/App/Text.h"
#include "ui/BatchForm/BatchForm.h"
#include "ui/BatchForm/BatchWatch.h"
#include "ui/BatchResultForm/BatchResultForm.h"
#include "ui/ControlForm/FailureMessages.h"
#include "ui/ProgressForm/ProgressForm.h"
#include "ui/SlideShowOptionForm/SlideShowOptionForm.h"

#include <QStringList>

#include <utility>

namespace ovisto {

void ListActions::showBatch()
{
    m_parts.boxes.moveFocusTo(*m_parts.ui.BatchShower);
    if (!m_editor.leaveShownFile())
        return;
    if (m_batch == nullptr || !m_batch->isVisible()) { // one that was closed may not be gone yet
        m_batch = new BatchForm(
            m_parts.Merovel, m_parts.ui.menuShowTechnical->isChecked(), [this] { return m_editor.reading(); },
            m_editor.list().files(), m_parts.surroundings.dialogs, &m_parts.window);
        m_batch->setAttribute(Qt::WA_DeleteOnClose);
        connect(m_batch, &BatchForm::started, this, &ListActions::runBatch);
        connect(m_batch, &BatchForm::rejected, &m_editor, &Editor::openIfNone);
    }
    m_batch->show();
    m_batch->activateWindow();
}

/// Makes a change to all files listed.
void ListActions::runBatch(const NodeChange& change)
{
    // A file that was opened since must not be saved over what the batch makes of it.
    m_parts.boxes.moveFocusTo(*m_parts.ui.BatchShower);
    if (!m_editor.leaveShownFile())
        return;
    const std::vector<std::string>& files = m_editor.list().files().paths();
    std::vector<BatchResult> became;
    int saved = 0;
    int hurt = 0;
    runWatched(m_parts.window, [&](ProgressForm& progress) {
        progress.show();
        BatchWatch watch(files, progress, m_parts.surroundings.dialogs);
        const auto count = [&](const std::string& path, const SaveReceipt& receipt) {
            watch.saved(path);
            ++saved;
            hurt += receipt.losses.empty() ? 0 : 1;
        };
        BatchAction(files, change, {.way = m_editor.writingWay(), .reading = m_editor.reading()})
            .run(watch, watch, count);
        became = watch.results();
    });
    m_batch->accept();
    BatchResults results(std::move(became));
    QStringList sentences(results.summary());
    if (hurt > 0)
        sentences
            << tr("Lost something in %L1 of %Ln files, as \"Keep Untouched Data?\" is off. The originals are kept as "
                  "NAME.original.",
                  nullptr, saved)
                   .arg(hurt);
    m_editor.savedLine().show(sentences.join(u' '));
    showResults(results);
}

/// Shows what became of each file if some failed, and the file shown before the batch, or what stays in the list.
void ListActions::showResults(BatchResults& results)
{
    std::vector<std::string> failed = results.failed();
    const bool keepsFailed = !failed.empty() && BatchResultForm(results, &m_parts.window).exec() == QDialog::Accepted;
    if (!keepsFailed)
        return m_editor.OpenSelectedFile();
    FileListPane& list = m_editor.list();
    list.clear();
    list.append(std::move(failed));
    list.open(0);
    list.showCount();
}

void ListActions::generateReport()
{
    m_parts.boxes.moveFocusTo(*m_parts.ui.FileFinder);
    if (!m_editor.settleChanges())
        return;
    const auto& [dialogs, desktop, settings, folders] = m_parts.surroundings;
    const auto styleSheet =
        dialogs.chooseFile(tr("Open Report"), pathText(folders.data), tr("XSL (*.xsl *.XSL);;All Files (*.*) (*)"));
    if (!styleSheet)
        return;
    const LocaleWords words;
    const ReportOptions options{.styleSheet = toPath(*styleSheet),
                                .folder = folders.writable,
                                .keep = m_editor.keepOptions(),
                                .values = {.dictionary = &m_parts.Merovel, .words = &words}};
    ReportResult report;
    runWatched(m_parts.window, [&](ProgressForm& progress) {
        report = makeReport(m_editor.list().files().paths(), options, progress, m_parts.reporter);
    });
    if (!report.leftOut.empty())
        dialogs.show(leftOutMessage(report.leftOut));
    if (!report.path.empty() && !ShellVerb(desktop, report.path, m_parts.window, Verb::Open))
        ErrorReport(m_parts.reporter, {Message::OpenReport, report.path}, {kInvalidCall, Message::NoProgramOpens});
}

void ListActions::showSlideShowOptions()
{
    auto* form = m_parts.window.findChild<SlideShowOptionForm*>();
    if (form == nullptr)
        form =
            new SlideShowOptionForm({m_editor.list().files(), *m_parts.ui.FilesFoundList->selectionModel(),
                                     m_parts.surroundings.dialogs, m_parts.surroundings.settings, m_editor.reading()},
                                    &m_parts.window);
    form->show();
    form->activateWindow();
}

} // namespace ovisto
