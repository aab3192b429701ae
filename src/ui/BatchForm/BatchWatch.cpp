#include "ui/BatchForm/BatchWatch.h"

namespace ovisto {

bool BatchWatch::step(const std::string& path, std::size_t done, std::size_t total)
{
    return !m_failed && m_progress.step(path, done, total);
}

void BatchWatch::report(const Phrase& context, const Error& error)
{
    if (m_failed) {
        m_failedToo.push_back({inEnglish(context), error});
        return;
    }
    m_reporter.report(context, error);
    m_failed = error.number != kOpenFailed && error.number != kStructureError;
}

} // namespace ovisto
