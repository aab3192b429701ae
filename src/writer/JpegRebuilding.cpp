// SPDX-License-Identifier: MIT

#include "writer/JpegRebuilding.h"

#include "common/system/Interruption.h"
#include "common/text/NumberText.h"
#include "document/Directories.h"
#include "document/NodePath.h"
#include "jpeg/FileIdentity.h"
#include "jpeg/Segments.h"
#include "writer/AboutNode.h"
#include "writer/ExifSegment.h"
#include "writer/PlainSegment.h"
#include "writer/SegmentWriter.h"

#include <algorithm>
#include <vector>

namespace ovisto {

namespace {

/// Copies the image data: from the byte `offset` on (the first is 1), `length` + 1 bytes, which is up to the
/// end-of-image marker. What would lie past the end of the file is not made up. Both numbers are as the document says
/// them, with 7 digits, so that in a file of 10,000,000 bytes or more they may be off by some bytes; but they must be
/// what a reader says of the file as it is now.
void copyImage(const XmlDocument& document, const InputFile& from, OutputFile& to)
{
    const std::vector<ConstXmlNode> images = document.node().childElement("JPEG").childElements("IMG");
    if (images.empty())
        throw systemError(kObjectNotSet);
    if (images.size() > 1)
        throw Error{kInvalidCall, Message::MoreThanOneImage};
    const ConstXmlNode& image = images.front();
    const auto place = imagePlace(from);
    if (!place || AttributeGet(image, "offset") != numberText(place->offset) ||
        AttributeGet(image, "length") != numberText(place->length))
        throw fileWasChanged();
    const std::int64_t offset = std::int64_t{attributeToLong(AttributeGet(image, "offset"))} - 1;
    const std::int64_t length = std::int64_t{attributeToLong(AttributeGet(image, "length"))} + 1;
    if (offset < 0)
        throw systemError(kInvalidCall);
    const std::int64_t there = std::clamp<std::int64_t>(from.size() - offset, 0, length);
    if (to.writeFrom(from, offset, there) != there)
        throw fileWasChanged();
}

void writeSegments(XmlDocument& document, OutputFile& file, ErrorReporter& reporter)
{
    SegmentWriter writer(file, reporter);
    LongLoop segments;
    for (const XmlNode& element : document.node().childElement("JPEG").childElements()) {
        segments.step();
        writer.IntelOrder = false;
        aboutNode(element, [&] {
            if (element.name() == kFirstDirectory)
                WriteExif(writer, element);
            else
                writePlainSegment(writer, element);
        });
    }
}

} // namespace

void rebuildJpeg(XmlDocument& document, const InputFile& oldFile, OutputFile& newFile, const std::string& newName,
                 ErrorReporter& reporter)
{
    const auto writeMarker = [&](const char* marker) { SegmentWriter(newFile, reporter).WriteHex(marker); };
    const Phrase writeFailed(Message::WriteFailed, newName);
    reported(reporter, Phrase(Message::WriteTo, newName), [&] { writeMarker("FFD8"); });
    reported(reporter, writeFailed, [&] { writeSegments(document, newFile, reporter); });
    reported(reporter, Phrase(Message::ImageTransferFailed, newName), [&] { copyImage(document, oldFile, newFile); });
    reported(reporter, writeFailed, [&] { writeMarker("FFD9"); });
}

} // namespace ovisto
