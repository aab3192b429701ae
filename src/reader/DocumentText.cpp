// SPDX-License-Identifier: MIT

#include "reader/DocumentText.h"

#include <cstddef>
#include <cstdint>

namespace ovisto {

DocumentText::DocumentText(ByteReader& reader) : m_reader(reader)
{
    constexpr std::size_t kUsualSize = std::size_t{64} * 1024;
    m_text.reserve(kUsualSize);
}

void DocumentText::appendElement(std::string_view openingTag, std::string_view content, std::string_view closingTag)
{
    const std::size_t size = openingTag.size() + content.size() + closingTag.size();
    m_reader.charge(static_cast<std::int64_t>(size));
    if (content.size() > m_text.size())
        m_text.reserve(2 * m_text.size() + size); // so that the few characters after a huge value do not double it
    m_text.append(openingTag).append(content).append(closingTag);
}

} // namespace ovisto
