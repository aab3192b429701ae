// SPDX-License-Identifier: MIT

#include "ui/BatchForm/BatchWatch.h"

#include "ui/App/Text.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace ovisto {

BatchWatch::BatchWatch(const std::vector<std::string>& files, Progress& progress, Dialogs& dialogs)
    : m_files(files), m_progress(progress), m_dialogs(dialogs)
{
}

bool BatchWatch::step(const std::string& path, std::size_t done, std::size_t total)
{
    m_stopped = m_stopped || !m_progress.step(path, done, total);
    if (m_stopped)
        return false;
    m_started = done + 1;
    m_outcomes.emplace(m_files[done], BatchOutcome::Unchanged);
    return true;
}

void BatchWatch::report(const Phrase& context, const Error& error)
{
    const std::string path = inEnglish(context);
    m_outcomes[m_reasons.emplace(path, error.description).first->first] = BatchOutcome::Failed;
    if (m_stopped || m_started == m_files.size() || std::exchange(m_asked, true))
        return;
    const QString question =
        QCoreApplication::translate("BatchWatch", "Go on with the other files? Those that fail are listed at the end.");
    const QStringList answers{QCoreApplication::translate("BatchWatch", "&Go On"),
                              QCoreApplication::translate("BatchWatch", "&Stop")};
    m_stopped = m_dialogs.choose(toQString(errorReportText(context, error)) + QStringLiteral("\r\n\r\n") + question,
                                 answers) != 0;
}

void BatchWatch::saved(const std::string& path)
{
    const auto found = m_outcomes.find(path);
    if (found != m_outcomes.end() && found->second == BatchOutcome::Unchanged)
        found->second = BatchOutcome::Changed;
}

std::vector<BatchResult> BatchWatch::results() const
{
    std::vector<BatchResult> results;
    std::unordered_set<std::string_view> listed;
    for (const std::string& path : m_files) {
        if (!listed.insert(path).second)
            continue;
        const auto outcome = m_outcomes.find(path);
        const auto reason = m_reasons.find(path);
        results.push_back({path, outcome != m_outcomes.end() ? outcome->second : BatchOutcome::NotReached,
                           reason != m_reasons.end() ? reason->second : Phrase()});
    }
    std::ranges::stable_sort(results, {}, &BatchResult::outcome);
    return results;
}

QString batchSummary(const std::vector<BatchResult>& results)
{
    const struct {
        BatchOutcome outcome;
        bool isAlwaysSaid;
        const char* text;
    } parts[] = {
        {BatchOutcome::Changed, true, QT_TRANSLATE_N_NOOP("BatchWatch", "%Ln changed")},
        {BatchOutcome::Unchanged, true, QT_TRANSLATE_N_NOOP("BatchWatch", "%Ln unchanged")},
        {BatchOutcome::Failed, false, QT_TRANSLATE_N_NOOP("BatchWatch", "%Ln failed")},
        {BatchOutcome::NotReached, false, QT_TRANSLATE_N_NOOP("BatchWatch", "%Ln not reached")},
    };
    QStringList said;
    for (const auto& part : parts) {
        const auto count = std::ranges::count(results, part.outcome, &BatchResult::outcome);
        if (count > 0 || part.isAlwaysSaid)
            said << QCoreApplication::translate("BatchWatch", part.text, nullptr, static_cast<int>(count));
    }
    return sentence(listed(said));
}

} // namespace ovisto
