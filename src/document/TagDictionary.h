#pragma once

#include "common/xml/XmlDocument.h"

#include <string>
#include <unordered_map>

namespace ovisto {

/// Whether a node is for everybody's eyes.
enum class Visibility { Shown, Technical, Hidden };

/// Whether a node's value may be changed (Free only) and the node be deleted (not when Required).
enum class Protection { Free, Protected, Required };

/// What is known of the nodes of metadata documents: label, help, data type, visibility and protection. The dictionary
/// mirrors a document, so a node's path leads to its entry.
class TagDictionary {
public:
    /// Loads the dictionary file. Raises what XMLLoad() raises.
    explicit TagDictionary(const std::string& path);

    /// The entry for a node path, as NodeXPath() writes it or any other that selects it; or no node. Raises
    /// kInvalidCall for what is no path.
    XmlNode entry(const std::string& nodePath) const;

    const XmlDocument& document() const { return m_document; }

private:
    XmlDocument m_document;
    std::unordered_map<std::string, XmlNode> m_entries; // by the path that NodeXPath() writes
};

// No entry is shown, and free.
Visibility visibility(const XmlNode& entry);
Protection protection(const XmlNode& entry);

} // namespace ovisto
