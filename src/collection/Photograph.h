// SPDX-License-Identifier: MIT

#pragma once

#include "common/Error.h"
#include "common/xml/XmlDocument.h"
#include "document/NodeChange.h"
#include "document/NodePaths.h"
#include "document/TagDictionary.h"
#include "document/ValueText.h"
#include "jpeg/FileIdentity.h"
#include "writer/SaveReceipt.h"

#include <string>

namespace ovisto {

/// A JPEG file, read in full, to be looked at, changed and saved: all that most programs need for one photograph. For
/// many, BatchAction is quicker. Paths of nodes are as NodeXPath() writes them; those of the usual ones are in
/// NodePaths.h. Texts are UTF-8. Errors are raised, each with what was being done and to which file or node.
///
/// A thread needs a Photograph of its own; the dictionary may be shared.
class Photograph {
public:
    /// Reads the file at `path` (bytes, as the system gives them). Raises what readFile() and documentOf() raise.
    /// `dictionary` must outlive the object.
    Photograph(std::string path, const TagDictionary& dictionary);

    const std::string& path() const { return m_path; }

    /// The full document of the file, with the changes made so far. It may be changed directly; its nodes are gone
    /// after save().
    XmlDocument& document() { return m_document; }
    const XmlDocument& document() const { return m_document; }

    /// The value of a node as the document has it ("1/125"); empty without such a node. Of several nodes with this
    /// path, the first counts.
    std::string value(const std::string& nodePath) const;

    /// What the value means, in words ("1/125 s").
    std::string inWords(const std::string& nodePath, const ValueWords& words = englishValueWords()) const;

    /// Sets the value of a node, creating the node where the document misses it. False if it had this value. Raises
    /// kInvalidCall where no photograph has such a node or it cannot be set, and where the document has several.
    /// Whether the value can be written, save() finds out; valueFault() says it earlier.
    bool set(const std::string& nodePath, const std::string& value);

    /// Deletes a node with all that is below it. False if the document does not have it. Raises kInvalidCall where it
    /// cannot be deleted, and where the document has several.
    bool remove(const std::string& nodePath);

    /// Saves the document to the file, which must be unchanged since it was read, in the way of WritingWay::Keep: all
    /// that was not changed stays as it was, byte for byte. Then reads the file again. Raises what saveDocument()
    /// raises; the file is then as it was, and the document keeps its changes.
    SaveReceipt save();

private:
    bool apply(NodeAction action, const std::string& nodePath, const std::string& value);
    void read();

    std::string m_path;
    const TagDictionary& m_dictionary;
    XmlDocument m_document;
    FileIdentity m_asRead; ///< the file that the document was read from
};

} // namespace ovisto
