// SPDX-License-Identifier: MIT

#include "cli/PropertyText.h"

#include "cli/TerminalText.h"
#include "document/DataType.h"
#include "document/PropertyTree.h"
#include "document/ValueText.h"

namespace ovisto {

namespace {

constexpr std::size_t kMostDigits = 64;

/// The value on one line; of long byte values (thumbnails, tables) only the beginning and the size.
std::string rawText(const std::string& text, int dataType)
{
    constexpr std::size_t kMostColumns = 1000;
    if (dataType == kByte && text.size() > kMostDigits)
        return text.substr(0, kMostDigits) + "... " + std::to_string(text.size() / 2) + " bytes";
    return oneLine(text, kMostColumns);
}

/// The meaning of the value, and the beginning of what the document has, unless the former ends with it.
std::string meantText(const DictionaryEntry& entry, const std::string& raw, int dataType)
{
    const auto meaning = valueMeaning(entry, raw, dataType, englishValueWords());
    if (!meaning)
        return rawText(raw, dataType);
    std::string text = oneLine(*meaning);
    if (raw.size() > kMostDigits)
        return text + " [" + oneLine(raw.substr(0, kMostDigits)) + "...]";
    return meaning->ends_with("(" + raw + ")") ? text : text + " [" + oneLine(raw) + "]";
}

} // namespace

std::string propertyText(const XmlDocument& document, const TagDictionary& dictionary, const PropertyOptions& options)
{
    std::string lines;
    for (const PropertyItem& item : propertyTree(document, dictionary, options.technical)) {
        const std::string label = item.label.empty() ? item.node.name() : item.label;
        lines.append(2 * static_cast<std::size_t>(item.depth), ' ').append(label);
        if (item.node.childElements().empty()) {
            const int dataType = shownDataType(item.node);
            const std::string_view type = shownDataTypeName(item.node);
            const std::string raw = item.node.text();
            lines.append(": ").append(options.raw ? rawText(raw, dataType) : meantText(item.entry, raw, dataType));
            if (!type.empty())
                lines.append(" (").append(type).append(")");
        }
        lines += '\n';
    }
    return lines;
}

} // namespace ovisto
