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

/// Where the label that an entry came with stays when it gets one of another language.
constexpr const char* kSourceLabel = "sourceLabel";

bool isEntry(const ConstXmlNode& node)
{
    const std::string name = node.name();
    return node.isElement() && name != "value" && name != "flag";
}

void setAttribute(XmlNode node, const char* name, const std::string& text)
{
    if (!text.empty())
        node.setAttribute(name, text);
}

/// Gives the values or flags that `entry` names the words that `texts` has for them.
void setValueTexts(XmlNode entry, const ConstXmlNode& texts, std::string_view element)
{
    for (const XmlNode& value : entry.childElements(element)) {
        for (const ConstXmlNode& text : texts.childElements(element)) {
            if (text.attribute("raw") == value.attribute("raw") && text.attribute("mask") == value.attribute("mask"))
                setAttribute(value, "text", text.attribute("text"));
        }
    }
}

} // namespace

std::string DictionaryEntry::label() const
{
    return AttributeGet(m_node, "label");
}

std::string DictionaryEntry::sourceLabel() const
{
    const std::string source = AttributeGet(m_node, kSourceLabel);
    return source.empty() ? label() : source;
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

void TagDictionary::setTexts(const std::string& path)
{
    XmlDocument file;
    XMLLoad(file, path);
    std::unordered_map<std::string, ConstXmlNode> texts;
    for (const ConstXmlNode& node : std::as_const(file).selectNodes(kAllEntries))
        texts.emplace(NodeXPath(node), node);
    for (const XmlNode& entry : m_document.selectNodes(kAllEntries)) {
        const ConstXmlNode text = texts[NodeXPath(entry)];
        if (entry.attribute(kSourceLabel).empty())
            setAttribute(entry, kSourceLabel, entry.attribute("label"));
        setAttribute(entry, "label", text.attribute("label"));
        setAttribute(entry, "help", text.attribute("help"));
        setValueTexts(entry, text, "value");
        setValueTexts(entry, text, "flag");
    }
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
