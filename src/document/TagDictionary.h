// SPDX-License-Identifier: MIT

#pragma once

#include "common/xml/XmlDocument.h"
#include "document/Reading.h"

#include <string>
#include <unordered_map>
#include <vector>

namespace ovisto {

/// Who gets to see a node.
enum class Visibility { Shown, Technical, Hidden };

/// Whether a node's value may be changed (Free only) and the node be deleted (not when Required).
enum class Protection { Free, Protected, Required };

/// What the tag dictionary says about a node, or no entry. Valid as long as the dictionary lives. No entry has no texts
/// and no data type, and counts as Shown and Free.
class DictionaryEntry {
public:
    DictionaryEntry() = default;
    /// Wraps `node`, an element of a dictionary; no node is no entry.
    explicit DictionaryEntry(const ConstXmlNode& node) : m_node(node) {}

    explicit operator bool() const { return static_cast<bool>(m_node); }
    bool operator==(const DictionaryEntry&) const = default;

    /// The caption for people, in UTF-8.
    std::string label() const;
    /// The one of the dictionary itself, whatever language it was given.
    std::string sourceLabel() const;
    /// What the value is about, in UTF-8, for people.
    std::string help() const;
    /// How values are put into words; the formats are those of valueText(). Empty for as they are.
    std::string format() const;
    Visibility visibility() const;
    Protection protection() const;

    /// Whether the node may have a value; a directory has none.
    bool hasDataType() const;
    /// The number of the data type that the node is created with, 0 without one. Raises what dataTypeOf() raises.
    int dataType() const;

    /// The path of the node in a metadata document, as NodeXPath() writes it.
    std::string path() const;
    /// The element of the dictionary.
    ConstXmlNode node() const { return m_node; }

private:
    ConstXmlNode m_node;
};

/// What is known about the nodes of metadata documents. The dictionary mirrors a document, so a node's path also
/// selects its entry. Several threads may use one at once.
class TagDictionary {
public:
    /// Loads the dictionary file, ProgramFolder().data + "Merovel.xml" as a rule. Raises what XMLLoad() raises.
    explicit TagDictionary(const std::string& path);

    /// Gives the entries the texts of another language: the labels, helps and words for values of the elements at the
    /// same paths in the file. What has none there keeps its own. Raises what XMLLoad() raises.
    void setTexts(const std::string& path);

    /// The entry for a node path, as NodeXPath() writes it or any other that selects it; no entry where it selects
    /// no element. Raises kInvalidCall for what is no path.
    DictionaryEntry entry(const std::string& nodePath) const;

    /// The entry for a node path exactly as NodeXPath() writes it, or no entry; the quickest way.
    DictionaryEntry entryAt(const std::string& nodePath) const;

    /// The entries of nodes that a document read in this way may have, in the order of the dictionary: with `technical`
    /// all but the hidden ones, else the shown ones.
    std::vector<DictionaryEntry> entries(bool technical, Reading reading) const;

    const XmlDocument& document() const { return m_document; }

private:
    XmlDocument m_document;
    std::unordered_map<std::string, DictionaryEntry> m_entries; // by the path that NodeXPath() writes
};

} // namespace ovisto
