#include "document/PropertyTree.h"

#include "common/Error.h"
#include "document/DataType.h"
#include "document/NodePath.h"

namespace ovisto {

namespace {

void appendItems(std::vector<PropertyItem>& items, const XmlNode& node, const TagDictionary& dictionary, bool technical,
                 int depth)
{
    const std::string path = NodeXPath(node);
    const XmlNode entry = dictionary.entry(path);
    const Visibility visible = visibility(entry);
    if (visible == Visibility::Hidden || (visible == Visibility::Technical && !technical))
        return;
    items.push_back({node, entry, path, AttributeGet(entry ? entry : node, entry ? "label" : "id"), depth});
    for (const XmlNode& child : node.childElements())
        appendItems(items, child, dictionary, technical, depth + 1);
}

} // namespace

std::vector<PropertyItem> propertyTree(const XmlDocument& document, const TagDictionary& dictionary, bool technical)
{
    std::vector<PropertyItem> items;
    if (const XmlNode root = document.documentElement())
        appendItems(items, root, dictionary, technical, 0);
    return items;
}

int shownDataType(const XmlNode& node)
{
    int dataType = 0;
    ErrorTrap trap;
    trap.run([&] { dataType = dataTypeOf(node); });
    return dataType == 0 ? kUndefined : dataType;
}

} // namespace ovisto
