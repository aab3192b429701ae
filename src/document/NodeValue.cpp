// SPDX-License-Identifier: MIT

#include "document/NodeValue.h"

#include "common/Error.h"
#include "document/Directories.h"

#include <cstddef>
#include <vector>

namespace ovisto {

bool isDirectory(const ConstXmlNode& node)
{
    const ExifPart* part = exifPart(node.name());
    return part != nullptr && part->kind == PartKind::Directory;
}

bool holdsNodes(const ConstXmlNode& node)
{
    return isDirectory(node) || !node.childElements().empty();
}

bool isSegmentText(const ConstXmlNode& node)
{
    return node.name() == "Exif1";
}

std::string nodeValue(const ConstXmlNode& node)
{
    const std::vector<ConstXmlNode> children = node.children();
    for (const ConstXmlNode& child : children) {
        if (child.isElement())
            return {};
    }
    std::string text = node.text();
    if (!isSegmentText(node) || children.empty() || children.front().isCData())
        return text;
    const std::size_t layout = text.starts_with("\r\n") ? 2 : text.starts_with('\n') ? 1 : 0;
    return text.erase(0, layout);
}

void setNodeValue(XmlNode node, const std::string& value)
{
    if (holdsNodes(node))
        throw Error{kInvalidCall, Message::NoDataType};
    node.setText(isSegmentText(node) ? "\n" + value : value);
}

} // namespace ovisto
