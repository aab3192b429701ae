// SPDX-License-Identifier: MIT

#include "document/Directories.h"

#include "common/text/Hex.h"
#include "document/NodePaths.h"

#include <algorithm>
#include <iterator>

namespace ovisto {

namespace {

/// The path below the Exif element, with a stroke before each level.
std::string pathInExif(const ExifPart& part)
{
    const ExifPart* parent = exifPart(part.parent);
    if (parent == nullptr)
        return {};
    return pathInExif(*parent).append("/").append(part.element);
}

/// The last step of the path of an entry.
std::string entryStep(std::uint16_t tag)
{
    return "/IFD[@id='" + hexNumber(tag, 4) + "']";
}

template <class Node> Node partBelow(Node exif, const ExifPart& part)
{
    const ExifPart* parent = exifPart(part.parent);
    return parent != nullptr ? partBelow(exif, *parent).childElement(part.element) : exif;
}

} // namespace

const ExifPart* exifPart(std::string_view element)
{
    const auto* row = std::ranges::find(kExifParts, element, &ExifPart::element);
    return row != std::end(kExifParts) ? row : nullptr;
}

const ExifPart* exifPartAt(std::string_view nodePath)
{
    if (!nodePath.starts_with(kExifPath))
        return nullptr;
    nodePath.remove_prefix(std::string_view(kExifPath).size());
    const auto* row = std::ranges::find(kExifParts, nodePath, pathInExif);
    return row != std::end(kExifParts) ? row : nullptr;
}

const ExifPart* partPointedFrom(std::string_view nodePath)
{
    const auto* row = std::ranges::find_if(kExifParts, [nodePath](const ExifPart& part) {
        return part.pointer.offset != 0 &&
               nodePath == kExifPath + pathInExif(*exifPart(part.pointedFrom)) + entryStep(part.pointer.offset);
    });
    return row != std::end(kExifParts) ? row : nullptr;
}

Reading readingNeeded(std::string_view nodePath)
{
    for (const ExifPart& part : kExifParts) {
        if (part.reading == Reading::Full && nodePath.starts_with(kExifPath + pathInExif(part)))
            return Reading::Full;
    }
    return Reading::Basic;
}

const ExifPart* bytesCountedBy(int tag)
{
    const auto* row = std::ranges::find_if(kExifParts, [tag](const ExifPart& part) {
        return part.kind == PartKind::Bytes && part.pointer.length == 0 && part.pointer.offset == tag;
    });
    return row != std::end(kExifParts) ? row : nullptr;
}

XmlNode partNode(XmlNode exif, const ExifPart& part)
{
    return partBelow(exif, part);
}

ConstXmlNode partNode(ConstXmlNode exif, const ExifPart& part)
{
    return partBelow(exif, part);
}

std::string partPath(const ExifPart& part)
{
    return kAnyExifPath + pathInExif(part);
}

std::string entryPath(const ExifPart& directory, std::uint16_t tag)
{
    return partPath(directory) + entryStep(tag);
}

} // namespace ovisto
