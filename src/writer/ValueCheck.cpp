// SPDX-License-Identifier: MIT

#include "writer/ValueCheck.h"

#include "common/xml/XmlDocument.h"
#include "document/NodePath.h"
#include "document/Reading.h"
#include "writer/EntryBytes.h"
#include "writer/TiffBlock.h"

namespace ovisto {

std::optional<Error> valueFault(const ConstXmlNode& node, const std::string& value)
{
    if (node.name() != "IFD")
        return std::nullopt;
    XmlDocument document;
    document.loadText(readingOf(node) == Reading::Full ? R"(<JPEG reading="full"><IFD/></JPEG>)"
                                                       : "<JPEG><IFD/></JPEG>");
    XmlNode entry = document.selectSingleNode("/JPEG/IFD");
    for (const char* attribute : {"id", "d"})
        entry.setAttribute(attribute, AttributeGet(node, attribute));
    entry.setText(value);
    ErrorTrap trap;
    trap.run([&] { newValue(TiffBlock::empty(), entry); });
    return trap.pending() ? std::optional(trap.take()) : std::nullopt;
}

} // namespace ovisto
