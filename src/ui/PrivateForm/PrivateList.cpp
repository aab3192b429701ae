// SPDX-License-Identifier: MIT

#include "ui/PrivateForm/PrivateList.h"

#include "collection/DocumentLoad.h"

namespace ovisto {

PrivateList::PrivateList(ShownFile& file, const TagDictionary& Merovel)
    : m_file(file), m_document(loadDocument(file.path(), {.reading = Reading::Full})),
      m_findings(privateFindings(m_document, file.path(), Merovel))
{
    std::erase_if(m_findings, [this](const PrivateFinding& finding) { return !m_file.tells(finding); });
}

void PrivateList::remove(const std::vector<std::size_t>& indexes)
{
    for (const std::size_t index : indexes)
        m_file.remove(m_findings[index]);
}

} // namespace ovisto
