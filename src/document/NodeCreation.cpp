#include "document/NodeCreation.h"

#include "document/NodePath.h"

#include <algorithm>

namespace ovisto {

namespace {

/// An entry that must exist for its container to be found in the file, and its text when it is made.
struct Companion {
    const char* container;
    const char* path;
    const char* text;
};

// The offsets and lengths are placeholders that the layout overwrites; a thumbnail's compression is 6 (JPEG). The paths
// of the companions name Exif without its id, so that they are found in any Exif element.
constexpr Companion kCompanions[] = {
    {"/JPEG/Exif[@id='FFE1']/IFDE", "/JPEG/Exif/IFD[@id='8769']", "9999"},
    {"/JPEG/Exif[@id='FFE1']/IFDI", "/JPEG/Exif/IFDE/IFD[@id='A005']", "9999"},
    {"/JPEG/Exif[@id='FFE1']/IFDE/MAKE", "/JPEG/Exif/IFDE/IFD[@id='927C']", "9999"},
    {"/JPEG/Exif[@id='FFE1']/IFD1/THUM", "/JPEG/Exif/IFD1/IFD[@id='0103']", "6"},
    {"/JPEG/Exif[@id='FFE1']/IFD1/THUM", "/JPEG/Exif/IFD1/IFD[@id='0201']", "9999"},
    {"/JPEG/Exif[@id='FFE1']/IFD1/THUM", "/JPEG/Exif/IFD1/IFD[@id='0202']", "0"},
};

void createCompanion(XmlDocument& document, const XmlNode& dictionary, const Companion& companion,
                     ErrorReporter& reporter)
{
    if (document.selectSingleNode(companion.path))
        return;
    CreateNode(document, dictionary.selectSingleNode(companion.path), reporter).setText(companion.text);
}

/// The element below `parent` that an element made from `templateNode` has to stand before: the first one that has the
/// name of a later sibling in the dictionary. Names alone count, so a new IFD entry comes before all others.
XmlNode nextSibling(const XmlNode& parent, const XmlNode& templateNode)
{
    const std::vector<XmlNode> siblings = templateNode.parent().childElements();
    auto sibling = std::ranges::find(siblings, templateNode.baseName(), &XmlNode::baseName);
    if (sibling == siblings.end())
        return {};
    const std::vector<XmlNode> existing = parent.childElements();
    while (++sibling != siblings.end()) {
        const auto next = std::ranges::find(existing, sibling->baseName(), &XmlNode::baseName);
        if (next != existing.end())
            return *next;
    }
    return {};
}

XmlNode createElement(const XmlDocument& document, const XmlNode& templateNode)
{
    XmlNode element = document.node().createElement(templateNode.baseName());
    const std::string id = AttributeGet(templateNode, "id");
    AttributeSet(element, "id", id);
    if (id == "FFE1")
        AttributeSet(element, "byteSeq", "II");
    AttributeSet(element, "d", AttributeGet(templateNode, "d"));
    return element;
}

void insert(XmlNode parent, const XmlNode& element, const XmlNode& next)
{
    if (!parent)
        throw systemError(kObjectNotSet);
    if (next)
        parent.insertBefore(element, next);
    else
        parent.appendChild(element);
}

} // namespace

XmlNode CreateNode(XmlDocument& document, const XmlNode& templateNode, ErrorReporter& reporter)
{
    const std::string path = NodeXPath(templateNode);
    ErrorTrap trap;
    XmlNode element;
    trap.run([&] {
        if (!templateNode)
            throw systemError(kObjectNotSet);
    });
    for (const Companion& companion : kCompanions) {
        if (companion.container == path)
            trap.run([&] { createCompanion(document, templateNode.document(), companion, reporter); });
    }
    if (templateNode) {
        trap.run([&] {
            const XmlNode parentTemplate = templateNode.parent();
            XmlNode parent = document.selectSingleNode(NodeXPath(parentTemplate));
            if (!parent)
                parent = CreateNode(document, parentTemplate, reporter);
            element = createElement(document, templateNode);
            insert(parent, element, nextSibling(parent, templateNode));
        });
    }
    if (trap.pending())
        ErrorReport(reporter, "Create node failed " + path, trap.take());
    return element;
}

} // namespace ovisto
