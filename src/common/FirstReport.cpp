#include "common/FirstReport.h"

#include <cstddef>

namespace ovisto {

namespace {

/// A context may end with a whole value. No character (UTF-8) is cut in two.
std::string shortened(const std::string& context)
{
    constexpr std::size_t kMost = 200;
    std::size_t count = 0;
    for (std::size_t place = 0; place < context.size(); ++place) {
        const bool startsCharacter = (context[place] & 0xC0) != 0x80;
        if (startsCharacter && ++count > kMost)
            return context.substr(0, place) + "...";
    }
    return context;
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
