#include "common/FirstReport.h"

#include "common/text/CodePage.h"

namespace ovisto {

namespace {

/// A context may end with a whole value.
std::string shortened(const std::string& context)
{
    constexpr std::size_t kMost = 200;
    if (characterCount(context) <= kMost)
        return context;
    std::string text;
    for (const char32_t character : characters(context).substr(0, kMost))
        appendCharacter(text, character);
    return text + "...";
}

} // namespace

void FirstReport::report(const std::string& context, const Error& error)
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
    if (!m_error || m_context.empty())
        return m_error.value_or(error);
    return {m_error->number, shortened(m_context) + ": " + m_error->description};
}

} // namespace ovisto
