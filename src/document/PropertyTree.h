#pragma once

#include "common/xml/XmlDocument.h"
#include "document/TagDictionary.h"

#include <string>
#include <vector>

namespace ovisto {

/// A node of a metadata document as a person sees it. `Node` is an XmlNode, or a ConstXmlNode of a const document.
template <class Node> struct ShownNode {
    Node node;
    DictionaryEntry entry;
    std::string path;  ///< as NodeXPath() writes it
    std::string label; ///< the entry's, or the node's id without one; in UTF-8
    int depth = 0;     ///< levels below the root element
};
using PropertyItem = ShownNode<ConstXmlNode>;

/// The elements of `document` that are shown, in document order, each before those below it. A hidden one takes all
/// below it with it. With `technical`, the technical ones are shown as well.
std::vector<ShownNode<XmlNode>> propertyTree(XmlDocument& document, const TagDictionary& dictionary, bool technical);
std::vector<PropertyItem> propertyTree(const XmlDocument& document, const TagDictionary& dictionary, bool technical);

/// The data type of a node; a missing or strange one counts as Undefined.
int shownDataType(const ConstXmlNode& node);

} // namespace ovisto
