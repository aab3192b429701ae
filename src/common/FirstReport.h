#pragma once

#include "common/ErrorReport.h"

#include <optional>

namespace ovisto {

/// Keeps the first report about a file or a step: those after it say what could not be done because of it.
class FirstReport : public ErrorReporter {
public:
    FirstReport() = default;
    /// Hands on all reports to `next`, which must outlive the object.
    explicit FirstReport(ErrorReporter& next) : m_next(&next) {}

    void report(const Phrase& context, const Error& error) override;

    const std::optional<Error>& error() const { return m_error; }

    /// The first report as one error, its context, of which a long one is cut, in front of the description; or `error`
    /// when nothing was reported.
    Error orElse(const Error& error) const;

private:
    ErrorReporter* m_next = nullptr;
    std::optional<Error> m_error;
    Phrase m_context;
};

} // namespace ovisto
