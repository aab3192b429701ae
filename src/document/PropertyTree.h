#pragma once

#include "common/xml/XmlDocument.h"
#include "document/TagDictionary.h"

#include <string>
#include <vector>

namespace ovisto {

/// A node of a metadata document as a person sees it.
struct PropertyItem {
    XmlNode node;
    XmlNode entry; ///< its entry in the tag dictionary; no node when there is none
    std::string path;
    std::string label; ///< the entry's, or the node's id without one
    int depth = 0;     ///< levels below the root element
};

/// The elements of `document` that are shown, in document order, each before those below it. A hidden one takes all
/// below it with it. With `technical`, the technical ones are shown as well.
std::vector<PropertyItem> propertyTree(const XmlDocument& document, const TagDictionary& dictionary, bool technical);

/// The data type of a node; a missing or strange one counts as Undefined.
int shownDataType(const XmlNode& node);

} // namespace ovisto
