// SPDX-License-Identifier: MIT

#pragma once

#include "common/xml/XmlDocument.h"
#include "document/TagDictionary.h"

#include <string>
#include <string_view>
#include <vector>

namespace ovisto {

/// A node of a metadata document as the user sees it. `Node` is an XmlNode, or a ConstXmlNode of a const document.
/// Valid as long as document and dictionary.
template <class Node> struct ShownNode {
    Node node;
    DictionaryEntry entry;
    std::string path;  ///< as NodeXPath() writes it
    std::string label; ///< the entry's, or the node's id without one; in UTF-8
    int depth = 0;     ///< levels below the root element, which has 0
};
using PropertyItem = ShownNode<ConstXmlNode>;

/// The elements of `document` to be shown, in document order, parents first. A hidden element hides everything below
/// it. With `technical`, technical elements are included.
std::vector<ShownNode<XmlNode>> propertyTree(XmlDocument& document, const TagDictionary& dictionary, bool technical);
std::vector<PropertyItem> propertyTree(const XmlDocument& document, const TagDictionary& dictionary, bool technical);

/// The data type of a node; a missing or invalid one counts as Undefined.
int shownDataType(const ConstXmlNode& node);
/// Its name for people; empty for an unknown one.
std::string_view shownDataTypeName(const ConstXmlNode& node);

} // namespace ovisto
