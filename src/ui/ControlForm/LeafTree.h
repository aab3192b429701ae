// SPDX-License-Identifier: MIT

#pragma once

#include "common/xml/XmlDocument.h"
#include "document/TagDictionary.h"
#include "document/ValueWords.h"
#include "ui/ControlForm/OsProperties.h"

#include <string>
#include <vector>

namespace ovisto {

/// An item of the property tree.
struct Leaf {
    std::string key;       ///< "x" and six digits; the node's "leafIndex"
    std::string parentKey; ///< the key of the parent item; empty for the top one
    std::string label;
    std::string value; ///< what it means, for people; empty for a node without a value of its own
    std::string path;  ///< the node's
};

/// A document as the window shows it: the items of a tree, parents first, and the OS properties, which have boxes of
/// their own.
struct LeafTree {
    std::vector<Leaf> leaves;
    OsProperties osProperties;
};

/// What the window shows of `JpegDoc`, values in these words; technical nodes only with `technical`. Sets "label" and
/// "leafIndex" (from x000001, in document order) on the nodes shown. Raises kObjectNotSet if the document has no root
/// element.
LeafTree loadLeaves(XmlDocument& JpegDoc, const TagDictionary& Merovel, bool technical, const ValueWords& words);

/// An XPath expression that selects the node of the item with `key`.
std::string leafXPath(const std::string& key);

/// Removes all "leafIndex" attributes; the next loadLeaves() sets new ones.
void removeLeafKeys(XmlDocument& JpegDoc);

} // namespace ovisto
