// SPDX-License-Identifier: MIT

#include "common/ErrorReport.h"

#include <string>

namespace ovisto {

void ErrorReport(ErrorReporter& reporter, const Phrase& context, const Error& error)
{
    reporter.report(context, error);
}

Phrase errorReportText(const Phrase& context, const Error& error)
{
    return {Message::ErrorReport, context, std::to_string(error.number), error.description};
}

} // namespace ovisto
