#include "cli/PropertyText.h"

#include "cli/TerminalText.h"
#include "document/DataType.h"
#include "document/PropertyTree.h"

namespace ovisto {

namespace {

/// The value on one line; of long byte values (thumbnails, tables) only the beginning and the size.
std::string valueText(const ConstXmlNode& node, int dataType)
{
    constexpr std::size_t kMostDigits = 64;
    constexpr std::size_t kMostColumns = 1000;
    const std::string text = node.text();
    if (dataType == kByte && text.size() > kMostDigits)
        return text.substr(0, kMostDigits) + "... " + std::to_string(text.size() / 2) + " bytes";
    return oneLine(text, kMostColumns);
}

} // namespace

std::string propertyText(const XmlDocument& document, const TagDictionary& dictionary, bool technical)
{
    std::string lines;
    for (const PropertyItem& item : propertyTree(document, dictionary, technical)) {
        const std::string label = item.label.empty() ? item.node.name() : item.label;
        lines += std::string(2 * static_cast<std::size_t>(item.depth), ' ') + label;
        if (item.node.childElements().empty()) {
            const int dataType = shownDataType(item.node);
            const std::string type(shownDataTypeName(item.node));
            lines += ": " + valueText(item.node, dataType) + (type.empty() ? "" : " (" + type + ")");
        }
        lines += '\n';
    }
    return lines;
}

} // namespace ovisto
