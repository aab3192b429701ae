#pragma once

#include "common/ErrorReport.h"
#include "common/xml/XmlDocument.h"
#include "document/TagDictionary.h"

#include <string>

namespace ovisto {

enum class NodeAction { Set, Delete, Add };

/// One change to one node, as it is made to any number of files.
struct NodeChange {
    NodeAction action = NodeAction::Set;
    DictionaryEntry entry; ///< of the node
    std::string value;     ///< the new text, for Set
};

/// Why the change cannot be made to any file, as a sentence for a person; empty when it can.
std::string objection(const NodeChange& change);

/// Makes the change to a document, creating the node where Set or Add misses it. Returns whether that changed the
/// document. A node that cannot be created is reported, and the error raised; the document is then of no more use.
bool applyChange(XmlDocument& document, const NodeChange& change, ErrorReporter& reporter);

/// Removes the node that has no meaning without the one of `path`, which was removed: the entry that pointed to it, or
/// the directory that was there for it. Returns the node removed, or no node.
XmlNode removeCompanion(XmlDocument& document, const std::string& path);

} // namespace ovisto
