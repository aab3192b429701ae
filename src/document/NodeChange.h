// SPDX-License-Identifier: MIT

#pragma once

#include "common/ErrorReport.h"
#include "common/xml/XmlDocument.h"
#include "document/Reading.h"
#include "document/TagDictionary.h"

#include <optional>
#include <string>
#include <string_view>

namespace ovisto {

enum class NodeAction { Set, Delete, Add };

/// A change to one node, to be made to any number of files.
struct NodeChange {
    NodeAction action = NodeAction::Set;
    DictionaryEntry entry{}; ///< of the node
    std::string value{};     ///< the new text (UTF-8), for Set; as nodeValue() has it
    XmlNode node{};          ///< the node itself, for one document; without it, the first one at the entry's path
    /// The path of the node as a person named it: a document with several such nodes is not changed. The entry may then
    /// be missing, if it is the path of an entry of a directory.
    std::string path{};
};

/// What a change did to a document.
struct ChangeResult {
    bool changed = false;
    XmlNode companion{}; ///< what a deletion removed too, as it has no meaning without the node deleted

    explicit operator bool() const { return changed; }
};

/// The first character of `value`, a text for a node of the data type, that a basic document cannot have: it would be
/// written as "?". None for types that hold any character, and for none.
std::optional<char32_t> characterLost(int dataType, std::string_view value);

/// Says so of a node with this label.
Phrase lossOf(char32_t character, const std::string& label);

/// How a node in a document is protected: as its entry says, but the value of one that holds others is never free, and
/// an empty segment that claims to be part of the image can be deleted.
Protection protectionOf(const ConstXmlNode& node, const DictionaryEntry& entry);

/// Why the change cannot be made to any file that is read in this way; empty when it can.
Phrase objection(const NodeChange& change, Reading reading);

/// Whether deleting the node at `path` takes others with it: those below it, or a companion (see applyChange()).
bool takesOthersAlong(const XmlDocument& document, const std::string& path);

/// Makes the change to a document, creating the node where Set or Add misses it. Deleting a node removes the entry that
/// pointed to it too, what it pointed to, or the directory that was there for it. A node that cannot be created is
/// reported, and the error raised; the document is then of no more use. Raises kInvalidCall for a value of a node that
/// holds others, and for deleting a part of the image that the change's entry stands for unless it is empty.
ChangeResult applyChange(XmlDocument& document, const NodeChange& change, ErrorReporter& reporter);

} // namespace ovisto
