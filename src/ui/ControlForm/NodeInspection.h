// SPDX-License-Identifier: MIT

#pragma once

#include "common/xml/XmlDocument.h"
#include "document/TagDictionary.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ovisto {

constexpr bool isLocked(Protection protection)
{
    return protection != Protection::Free;
}
constexpr bool isDeletable(Protection protection)
{
    return protection != Protection::Required;
}

/// The translated name of a data type, which may be empty, and how the value is protected. Nothing without a name.
std::optional<QString> dataTypeCaption(std::string_view typeName, Protection protection);

/// The value of a node as the box first shows it. The lines of a text end with CR LF; those of a segment as they do.
std::string boxValue(const ConstXmlNode& node, int dataType);

/// The characters of the bytes in a hexadecimal text, for display only. Bytes 0 and 10 are dropped, 13 becomes CR LF,
/// and any other byte below 32 except tab becomes character 140.
std::string translatedText(const std::string& hexadecimal);

/// The bytes in a hexadecimal text; a single digit at the end is ignored.
std::vector<std::uint8_t> bytesOf(const std::string& hexadecimal);

/// Whether the node holds a thumbnail.
bool isThumbnail(const ConstXmlNode& node);

/// The Exif orientation of the thumbnail: its own, or that of the picture if it has none.
int thumbnailOrientation(const XmlDocument& JpegDoc);

} // namespace ovisto
