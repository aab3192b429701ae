// SPDX-License-Identifier: MIT

#include "ui/ControlForm/NodeInspection.h"

#include "common/Error.h"
#include "common/text/CodePage.h"
#include "common/text/Hex.h"
#include "common/text/NumberText.h"
#include "common/text/Unicode.h"
#include "document/DataType.h"
#include "document/Directories.h"
#include "document/NodePaths.h"
#include "document/NodeValue.h"
#include "ui/ControlForm/OsProperties.h"

#include <QCoreApplication>

#include <string_view>

namespace ovisto {

std::optional<QString> dataTypeCaption(std::string_view typeName, Protection protection)
{
    const std::string name(typeName);
    if (name.empty())
        return std::nullopt;
    const QString caption = QCoreApplication::translate("DataType", name.c_str());
    if (protection == Protection::Required)
        return QCoreApplication::translate("DataType", "%1 Required").arg(caption);
    if (protection == Protection::Protected)
        return QCoreApplication::translate("DataType", "%1 Protected").arg(caption);
    return caption;
}

std::string boxValue(const ConstXmlNode& node, int dataType)
{
    const bool isText = (dataType == kString || dataType == kUnicodeString) && !isSegmentText(node);
    return isText ? withCrLf(nodeValue(node)) : nodeValue(node);
}

std::string translatedText(const std::string& hexadecimal)
{
    constexpr std::uint8_t kControlStandIn = 140;
    constexpr std::uint8_t kFirstPrintable = 32;
    std::string text;
    for (const std::uint8_t byte : bytesOf(hexadecimal)) {
        if (byte == 0 || byte == '\n')
            continue;
        if (byte == '\r')
            text += "\r\n";
        else
            appendCharacter(text, codePageCharacter(byte < kFirstPrintable && byte != '\t' ? kControlStandIn : byte));
    }
    return text;
}

std::vector<std::uint8_t> bytesOf(const std::string& hexadecimal)
{
    const std::size_t wholeBytes = hexadecimal.size() / 2;
    return hexRunBytes(std::string_view(hexadecimal).substr(0, 2 * wholeBytes));
}

bool isThumbnail(const ConstXmlNode& node)
{
    return node.name() == kThumbnailBytes;
}

int thumbnailOrientation(const XmlDocument& JpegDoc)
{
    int orientation = 1;
    ErrorTrap trap;
    for (const char* path : {kAnyOrientationPath, kAnyThumbnailOrientationPath}) {
        if (const ConstXmlNode node = JpegDoc.selectSingleNode(path))
            trap.run([&] { orientation = toLong(node.text()); });
    }
    return orientation;
}

} // namespace ovisto
