#include "document/DataType.h"

#include "common/text/NumberText.h"
#include "document/NodePath.h"

#include <array>
#include <cstddef>

namespace ovisto {

int dataTypeOf(const XmlNode& node)
{
    return attributeToLong(AttributeGet(node, "d"));
}

std::string_view dataTypeName(int dataType)
{
    constexpr std::array<std::string_view, 12> kNames = {
        "",          "Byte",         "String",      "Short",           "Long",          "Rational", "Signed Byte",
        "Undefined", "Signed Short", "Signed Long", "Signed Rational", "Unicode String"};
    return dataType >= 0 && static_cast<std::size_t>(dataType) < kNames.size()
               ? kNames[static_cast<std::size_t>(dataType)]
               : std::string_view();
}

} // namespace ovisto
