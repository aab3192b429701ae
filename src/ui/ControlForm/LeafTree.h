#pragma once

#include "common/xml/XmlDocument.h"
#include "document/TagDictionary.h"
#include "ui/ControlForm/OsProperties.h"

#include <string>
#include <vector>

namespace ovisto {

/// An item of the property tree.
struct Leaf {
    std::string key;       ///< "x" and six digits; the node's "leafIndex"
    std::string parentKey; ///< that of the item above it; empty for the top one
    std::string label;
    std::string path; ///< the node's
};

/// A document as the window shows it: items of a tree, each before those below it, and the properties of the operating
/// system, which have boxes of their own.
struct LeafTree {
    std::vector<Leaf> leaves;
    OsProperties osProperties;
};

/// What the window shows of `JpegDoc`; technical nodes with `technical` only. The nodes shown receive their "label" and
/// "leafIndex", numbered from x000001 on in document order. Raises kObjectNotSet when the document has no root element.
LeafTree loadLeaves(XmlDocument& JpegDoc, const TagDictionary& Merovel, bool technical);

/// Selects the node of the item with `key`.
std::string leafXPath(const std::string& key);

/// Removes all "leafIndex" attributes: the next build gives new ones.
void removeLeafKeys(XmlDocument& JpegDoc);

} // namespace ovisto
