// SPDX-License-Identifier: MIT

#include "document/PropertyTree.h"

#include "common/Error.h"
#include "common/text/Hex.h"
#include "document/DataType.h"
#include "document/NodePath.h"

namespace ovisto {

namespace {

/// `path` is that of the node, as NodeXPath() writes it.
template <class Node>
void appendItems(std::vector<ShownNode<Node>>& items, Node node, const std::string& path,
                 const TagDictionary& dictionary, bool technical, int depth)
{
    const DictionaryEntry entry = dictionary.entry(path);
    const Visibility visibility = entry.visibility();
    if (visibility == Visibility::Hidden || (visibility == Visibility::Technical && !technical))
        return;
    items.push_back({node, entry, path, entry ? entry.label() : AttributeGet(node, "id"), depth});
    for (const Node& child : node.childElements())
        appendItems(items, child, path + nodeStep(child), dictionary, technical, depth + 1);
}

template <class Node> std::vector<ShownNode<Node>> itemsFrom(Node root, const TagDictionary& dictionary, bool technical)
{
    std::vector<ShownNode<Node>> items;
    if (root)
        appendItems(items, root, NodeXPath(root), dictionary, technical, 0);
    return items;
}

} // namespace

std::vector<ShownNode<XmlNode>> propertyTree(XmlDocument& document, const TagDictionary& dictionary, bool technical)
{
    return itemsFrom(document.documentElement(), dictionary, technical);
}

std::vector<PropertyItem> propertyTree(const XmlDocument& document, const TagDictionary& dictionary, bool technical)
{
    return itemsFrom(document.documentElement(), dictionary, technical);
}

int shownDataType(const ConstXmlNode& node)
{
    int dataType = 0;
    ErrorTrap trap;
    trap.run([&] { dataType = dataTypeOf(node); });
    return dataType == 0 ? kUndefined : dataType;
}

std::string_view shownDataTypeName(const ConstXmlNode& node)
{
    const int number = shownDataType(node);
    const DataType* type = readingOf(node) == Reading::Full
                               ? findFullDataType(number, Hex4ToLong(AttributeGet(node, "id")))
                               : findDataType(number);
    return type != nullptr ? type->name : std::string_view();
}

} // namespace ovisto
