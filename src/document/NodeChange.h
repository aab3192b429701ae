#pragma once

#include "common/ErrorReport.h"
#include "common/xml/XmlDocument.h"

#include <string>

namespace ovisto {

enum class NodeAction { Set, Delete, Add };

/// One change to one node, as it is made to any number of files.
struct NodeChange {
    NodeAction action = NodeAction::Set;
    XmlNode entry;     ///< the node's entry in the tag dictionary
    std::string value; ///< the new text, for Set
};

/// Why the change cannot be made to any file, as a sentence for a person; empty when it can.
std::string objection(const NodeChange& change);

/// Makes the change to a document, creating the node where Set or Add misses it. Returns whether that changed the
/// document. `reporter` is told when the node cannot be created.
bool applyChange(XmlDocument& document, const NodeChange& change, ErrorReporter& reporter);

/// Removes the node that has no sense without the one of `path`, which was removed: the entry that pointed to it, or
/// the directory that was there for it. Returns the node removed, or no node.
XmlNode removeCompanion(XmlDocument& document, const std::string& path);

} // namespace ovisto
