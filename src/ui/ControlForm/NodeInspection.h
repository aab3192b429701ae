#pragma once

#include "common/xml/XmlDocument.h"
#include "document/TagDictionary.h"

#include <QString>

#include <cstdint>
#include <optional>
#include <string>
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

/// The name of the data type for people, and how the value is protected. None for a type without a name.
std::optional<QString> dataTypeCaption(int dataType, Protection protection);

/// The value of a node as the box shows it at first: the lines of a text end with CR LF.
std::string valueText(const ConstXmlNode& node, int dataType);

/// The characters of the bytes that a text names in hexadecimal, for reading only. The bytes 0 and 10 are dropped, 13
/// becomes CR LF, and any other byte below 32 but the tab is shown as character 140.
std::string translatedText(const std::string& hexadecimal);

/// The bytes that a text names in hexadecimal; a last single digit is ignored.
std::vector<std::uint8_t> bytesOf(const std::string& hexadecimal);

/// Whether the node holds a thumbnail.
bool isThumbnail(const ConstXmlNode& node);

/// How the thumbnail has to be turned, as an Exif orientation: by its own, or where it has none by that of the picture.
int thumbnailOrientation(const XmlDocument& JpegDoc);

} // namespace ovisto
