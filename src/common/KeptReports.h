// SPDX-License-Identifier: MIT

#pragma once

#include "common/ErrorReport.h"

#include <utility>
#include <vector>

namespace ovisto {

/// Keeps reports until it is known whether anyone should see them.
class KeptReports : public ErrorReporter {
public:
    void report(const Phrase& context, const Error& error) override { m_reports.emplace_back(context, error); }

    /// What was reported in which context, in this order.
    const std::vector<std::pair<Phrase, Error>>& all() const { return m_reports; }

    /// Reports all of them to `reporter`.
    void passTo(ErrorReporter& reporter) const
    {
        for (const auto& [context, error] : m_reports)
            ErrorReport(reporter, context, error);
    }

private:
    std::vector<std::pair<Phrase, Error>> m_reports;
};

} // namespace ovisto
