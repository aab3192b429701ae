#include "writer/JpegRebuilding.h"

#include "common/text/NumberText.h"
#include "common/text/Unicode.h"
#include "document/NodePath.h"
#include "jpeg/Segments.h"
#include "writer/ExifSegment.h"
#include "writer/SegmentWriter.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace ovisto {

namespace {

/// The text of a non-Exif APP1 element is in its CDATA section; the line break before it is layout. An element whose
/// text was set has no such section.
std::string app1Text(const ConstXmlNode& element)
{
    std::string text;
    bool hasCData = false;
    for (const ConstXmlNode& child : element.children()) {
        if (!child.isCData())
            continue;
        hasCData = true;
        text += child.text();
    }
    return hasCData ? text : element.text();
}

void writeApp0(SegmentWriter& writer, const XmlNode& element)
{
    writer.WriteHex("FFE0");
    writer.WriteSegmentHex(element.text());
}

void writeOtherApp1(SegmentWriter& writer, const XmlNode& element)
{
    constexpr std::int64_t kLengthAndZeros = 4;
    const std::string identifier = AttributeGet(element, "ns");
    const std::string text = app1Text(element);
    // It stands in a CDATA section when it is read.
    if (text.find("]]>") != std::string::npos)
        throw Error{kInvalidCall, Message::TextHasCdataEnd};
    writer.WriteHex("FFE1");
    writer.WriteInteger(static_cast<std::int64_t>(characterCount(identifier) + characterCount(text)) + kLengthAndZeros);
    writer.writeTerminated(identifier + '\0' + text);
}

void writeMarker(SegmentWriter& writer, const XmlNode& element)
{
    writer.WriteHex(AttributeGet(element, "id"));
    writer.WriteSegmentHex(element.text());
}

void writeScanHeader(SegmentWriter& writer, const XmlNode& element)
{
    writer.WriteHex("FFDA");
    writer.WriteSegmentHex(element.text());
}

struct ElementWriter {
    std::string_view name;
    void (*write)(SegmentWriter&, const XmlNode&);
};

constexpr ElementWriter kElementWriters[] = {
    {"APP0", writeApp0},
    {"Exif", [](SegmentWriter& writer, const XmlNode& element) { WriteExif(writer, element); }},
    {"Exif1", writeOtherApp1},
    {"APP1", writeMarker},
    {"SOS", writeScanHeader},
};

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
        throw Error{kInvalidCall, Message::FileWasChanged};
    const std::int64_t offset = std::int64_t{attributeToLong(AttributeGet(image, "offset"))} - 1;
    const std::int64_t length = std::int64_t{attributeToLong(AttributeGet(image, "length"))} + 1;
    if (offset < 0)
        throw systemError(kInvalidCall);
    to.writeFrom(from, offset, length);
}

void writeSegments(XmlDocument& document, OutputFile& file, ErrorReporter& reporter)
{
    SegmentWriter writer(file, reporter);
    for (const XmlNode& element : document.node().childElement("JPEG").childElements()) {
        writer.IntelOrder = false;
        const auto* row = std::ranges::find(kElementWriters, element.name(), &ElementWriter::name);
        if (row == std::end(kElementWriters))
            continue;
        row->write(writer, element);
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
