// SPDX-License-Identifier: MIT

#include "document/NodeCreation.h"

#include "document/Directories.h"
#include "document/NodePath.h"

#include <algorithm>

namespace ovisto {

namespace {

/// Creates an entry of `directory`, without which its part would not be found in the file, where it is missing. It is
/// found in any Exif element.
void createCompanion(XmlDocument& document, const ConstXmlNode& dictionary, const ExifPart& directory,
                     const EntryText& companion, ErrorReporter& reporter)
{
    const std::string path = entryPath(directory, companion.tag);
    if (document.selectSingleNode(path))
        return;
    CreateNode(document, DictionaryEntry(dictionary.selectSingleNode(path)), reporter).setText(companion.text);
}

/// The entries that a part is created with. The offset and the length are placeholders that the layout overwrites.
std::vector<EntryText> companionsOf(const ExifPart& part)
{
    std::vector<EntryText> companions{part.property, {part.pointer.offset, "9999"}, {part.pointer.length, "0"}};
    std::erase_if(companions, [](const EntryText& companion) { return companion.tag == 0; });
    return companions;
}

/// The element below `parent` that an element made from `templateNode` has to stand before: the first one that has the
/// name of a later sibling in the dictionary. Names alone count, so a new IFD entry comes before all others.
XmlNode nextSibling(XmlNode parent, const ConstXmlNode& templateNode)
{
    const std::vector<ConstXmlNode> siblings = templateNode.parent().childElements();
    auto sibling = std::ranges::find(siblings, templateNode.baseName(), &ConstXmlNode::baseName);
    if (sibling == siblings.end())
        return {};
    const std::vector<XmlNode> existing = parent.childElements();
    while (++sibling != siblings.end()) {
        const auto next = std::ranges::find(existing, sibling->baseName(), &ConstXmlNode::baseName);
        if (next != existing.end())
            return *next;
    }
    return {};
}

XmlNode createElement(XmlDocument& document, const ConstXmlNode& templateNode)
{
    XmlNode element = document.node().createElement(templateNode.baseName());
    const std::string id = AttributeGet(templateNode, "id");
    AttributeSet(element, "id", id);
    if (id == "FFE1")
        AttributeSet(element, "byteSeq", "II");
    AttributeSet(element, "d", AttributeGet(templateNode, "d"));
    return element;
}

void insert(XmlNode parent, XmlNode element, XmlNode next)
{
    if (!parent)
        throw systemError(kObjectNotSet);
    if (next)
        parent.insertBefore(element, next);
    else
        parent.appendChild(element);
}

} // namespace

XmlNode CreateNode(XmlDocument& document, const DictionaryEntry& entry, ErrorReporter& reporter)
{
    const std::string path = entry.path();
    const ConstXmlNode templateNode = entry.node();
    ErrorTrap trap;
    XmlNode element;
    trap.run([&] {
        if (!entry)
            throw systemError(kObjectNotSet);
    });
    if (const ExifPart* part = exifPartAt(path)) {
        for (const EntryText& companion : companionsOf(*part)) {
            const ExifPart& directory = *exifPart(part->pointedFrom);
            trap.run([&] { createCompanion(document, templateNode.document(), directory, companion, reporter); });
        }
    }
    if (entry) {
        trap.run([&] {
            const DictionaryEntry parentEntry(templateNode.parent());
            XmlNode parent = document.selectSingleNode(parentEntry.path());
            if (!parent) {
                parent = CreateNode(document, parentEntry, reporter);
                element = document.selectSingleNode(path); // which a directory may have been created with
            }
            if (element)
                return;
            element = createElement(document, templateNode);
            insert(parent, element, nextSibling(parent, templateNode));
        });
        const ExifPart* part = exifPartAt(path);
        if (part != nullptr && !part->firstEntry.text.empty())
            trap.run([&] { createCompanion(document, templateNode.document(), *part, part->firstEntry, reporter); });
    }
    reportPending(
        reporter, [&] { return Phrase(Message::CreateNodeFailed, path); }, trap);
    return element;
}

} // namespace ovisto
