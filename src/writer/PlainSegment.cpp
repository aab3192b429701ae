// SPDX-License-Identifier: MIT

#include "writer/PlainSegment.h"

#include "common/Error.h"
#include "common/text/Unicode.h"
#include "document/NodePath.h"
#include "document/NodeValue.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string_view>

namespace ovisto {

namespace {

void writeApp0(SegmentWriter& writer, const ConstXmlNode& element)
{
    writer.WriteHex("FFE0");
    writer.WriteSegmentHex(element.text());
}

void writeOtherApp1(SegmentWriter& writer, const ConstXmlNode& element)
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

void writeMarker(SegmentWriter& writer, const ConstXmlNode& element)
{
    writer.WriteHex(AttributeGet(element, "id"));
    writer.WriteSegmentHex(element.text());
}

void writeScanHeader(SegmentWriter& writer, const ConstXmlNode& element)
{
    writer.WriteHex("FFDA");
    writer.WriteSegmentHex(element.text());
}

struct ElementWriter {
    std::string_view name;
    void (*write)(SegmentWriter&, const ConstXmlNode&);
};

constexpr ElementWriter kElementWriters[] = {
    {"APP0", writeApp0},
    {"Exif1", writeOtherApp1},
    {"APP1", writeMarker},
    {"SOS", writeScanHeader},
};

} // namespace

void writePlainSegment(SegmentWriter& writer, const ConstXmlNode& element)
{
    const auto* row = std::ranges::find(kElementWriters, element.name(), &ElementWriter::name);
    if (row != std::end(kElementWriters))
        row->write(writer, element);
}

std::string app1Text(const ConstXmlNode& element)
{
    if (!element.childElements().empty())
        throw Error{kInvalidCall, Message::TextHasElements};
    return nodeValue(element);
}

} // namespace ovisto
