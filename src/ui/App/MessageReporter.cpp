#include "ui/App/MessageReporter.h"

#include "ui/App/Text.h"

namespace ovisto {

void MessageReporter::report(const Phrase& context, const Error& error)
{
    m_dialogs.show(toQString(errorReportText(context, error)));
}

} // namespace ovisto
