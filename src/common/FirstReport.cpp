// SPDX-License-Identifier: MIT

#include "common/FirstReport.h"

namespace ovisto {

void FirstReport::report(const Phrase& context, const Error& error)
{
    if (m_next != nullptr)
        m_next->report(context, error);
    if (m_error)
        return;
    m_error = error;
    m_context = context;
}

Error FirstReport::orElse(const Error& error) const
{
    constexpr std::size_t kMost = 200; // a context may end with a whole value
    if (!m_error || m_context.isEmpty())
        return m_error.value_or(error);
    return {m_error->number, {Message::InContext, m_context.shortened(kMost), m_error->description}};
}

} // namespace ovisto
