#include "document/TagDictionary.h"

#include "common/xml/XmlLoad.h"
#include "document/NodePath.h"

namespace ovisto {

TagDictionary::TagDictionary(const std::string& path)
{
    XMLLoad(m_document, path);
    for (const XmlNode& entry : m_document.selectNodes("//*"))
        m_entries.emplace(NodeXPath(entry), entry);
}

XmlNode TagDictionary::entry(const std::string& nodePath) const
{
    const auto found = m_entries.find(nodePath);
    return found != m_entries.end() ? found->second : m_document.selectSingleNode(nodePath);
}

Visibility visibility(const XmlNode& entry)
{
    const std::string text = AttributeGet(entry, "vis");
    if (text == "2")
        return Visibility::Hidden;
    return text == "1" ? Visibility::Technical : Visibility::Shown;
}

Protection protection(const XmlNode& entry)
{
    const std::string text = AttributeGet(entry, "prot");
    if (text == "2")
        return Protection::Required;
    return text == "1" ? Protection::Protected : Protection::Free;
}

} // namespace ovisto
