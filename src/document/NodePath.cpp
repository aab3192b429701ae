#include "document/NodePath.h"

namespace ovisto {

std::string AttributeGet(const ConstXmlNode& node, const char* name)
{
    return node.attribute(name);
}

void AttributeSet(XmlNode node, const char* name, const std::string& value)
{
    if (value.empty())
        node.removeAttribute(name);
    else
        node.setAttribute(name, value);
}

std::string NodeXPath(const ConstXmlNode& node)
{
    std::string path;
    for (ConstXmlNode level = node; level && level.name() != "#document"; level = level.parent()) {
        if (level.name() == "#text")
            continue;
        const std::string id = AttributeGet(level, "id");
        path.insert(0, "/" + level.name() + (id.empty() ? "" : "[@id='" + id + "']"));
    }
    return path;
}

} // namespace ovisto
