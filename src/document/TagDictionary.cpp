// SPDX-License-Identifier: MIT

#include "document/TagDictionary.h"

#include "common/xml/XmlLoad.h"
#include "document/DataType.h"
#include "document/Directories.h"
#include "document/NodePath.h"

#include <utility>

namespace ovisto {

namespace {

/// All elements but those that name single values of an entry.
constexpr const char* kAllEntries = "//*[not(self::value or self::flag)]";

bool isEntry(const ConstXmlNode& node)
{
    const std::string name = node.name();
    return node.isElement() && name != "value" && name != "flag";
}

} // namespace

std::string DictionaryEntry::label() const
{
    return AttributeGet(m_node, "label");
}

std::string DictionaryEntry::help() const
{
    return AttributeGet(m_node, "help");
}

std::string DictionaryEntry::format() const
{
    return AttributeGet(m_node, "format");
}

Visibility DictionaryEntry::visibility() const
{
    const std::string text = AttributeGet(m_node, "vis");
    if (text == "2")
        return Visibility::Hidden;
    return text == "1" ? Visibility::Technical : Visibility::Shown;
}

Protection DictionaryEntry::protection() const
{
    const std::string text = AttributeGet(m_node, "prot");
    if (text == "2")
        return Protection::Required;
    return text == "1" ? Protection::Protected : Protection::Free;
}

bool DictionaryEntry::hasDataType() const
{
    return !AttributeGet(m_node, "d").empty();
}

int DictionaryEntry::dataType() const
{
    return dataTypeOf(m_node);
}

std::string DictionaryEntry::path() const
{
    return NodeXPath(m_node);
}

TagDictionary::TagDictionary(const std::string& path)
{
    XMLLoad(m_document, path);
    for (const ConstXmlNode& node : std::as_const(m_document).selectNodes(kAllEntries))
        m_entries.emplace(NodeXPath(node), node);
}

DictionaryEntry TagDictionary::entry(const std::string& nodePath) const
{
    if (const DictionaryEntry found = entryAt(nodePath))
        return found;
    const ConstXmlNode selected = m_document.selectSingleNode(nodePath);
    return isEntry(selected) ? DictionaryEntry(selected) : DictionaryEntry();
}

DictionaryEntry TagDictionary::entryAt(const std::string& nodePath) const
{
    const auto found = m_entries.find(nodePath);
    return found != m_entries.end() ? found->second : DictionaryEntry();
}

std::vector<DictionaryEntry> TagDictionary::entries(bool technical, Reading reading) const
{
    std::vector<DictionaryEntry> entries;
    const char* visible = technical ? "[not(@vis='2')]" : "[not(@vis>'0')]";
    for (const ConstXmlNode& node : m_document.selectNodes(std::string(kAllEntries) + visible)) {
        const DictionaryEntry entry(node);
        if (reading == Reading::Full || readingNeeded(entry.path()) == Reading::Basic)
            entries.push_back(entry);
    }
    return entries;
}

} // namespace ovisto
