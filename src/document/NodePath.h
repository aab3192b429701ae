// SPDX-License-Identifier: MIT

#pragma once

#include "common/xml/XmlNode.h"

#include <string>
#include <string_view>

namespace ovisto {

/// The text of an attribute; empty if there is no node or no such attribute.
std::string AttributeGet(const ConstXmlNode& node, const char* name);

/// Sets an attribute, creating it if necessary. An empty value deletes it.
void AttributeSet(XmlNode node, const char* name, const std::string& value);

/// The node's path from the root element down: for each level "/" and the element's name, with "[@id='...']" if it has
/// an id, as in /JPEG/Exif[@id='FFE1']/IFDE/IFD[@id='9003']. The path of a text is that of its element. The same path
/// selects the node in a metadata document and its entry in the tag dictionary.
std::string NodeXPath(const ConstXmlNode& node);

/// The last level of the path of an element, such as /IFD[@id='9003'].
std::string nodeStep(const ConstXmlNode& element);

/// What a text means as a node path.
enum class PathMeaning {
    NotAPath,   ///< it is not written as NodeXPath() writes paths
    NoSuchNode, ///< no document has such a node
    Entry,      ///< an entry of a directory; documents have entries of any tag
    OtherNode,
};

PathMeaning pathMeaning(std::string_view path);

} // namespace ovisto
