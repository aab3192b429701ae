#include "common/ErrorReport.h"

namespace ovisto {

void ErrorReport(ErrorReporter& reporter, const std::string& context, const Error& error)
{
    reporter.report(context, error);
}

std::string errorReportText(const std::string& context, const Error& error)
{
    return context + "\r\n" + std::to_string(error.number) + " : " + error.description;
}

} // namespace ovisto
