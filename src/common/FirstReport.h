// SPDX-License-Identifier: MIT

#pragma once

#include "common/ErrorReport.h"

#include <optional>

namespace ovisto {

/// Keeps the first report about a file or a step. Later ones only say what could not be done because of it.
class FirstReport : public ErrorReporter {
public:
    FirstReport() = default;
    /// Also passes all reports on to `next`, which must outlive the object.
    explicit FirstReport(ErrorReporter& next) : m_next(&next) {}

    void report(const Phrase& context, const Error& error) override;

    const std::optional<Error>& error() const { return m_error; }

    /// The first report as one error, with its context (cut if it is long) before the description; `error` if nothing
    /// was reported.
    Error orElse(const Error& error) const;

private:
    ErrorReporter* m_next = nullptr;
    std::optional<Error> m_error;
    Phrase m_context;
};

} // namespace ovisto
