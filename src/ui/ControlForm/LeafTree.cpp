// SPDX-License-Identifier: MIT

#include "ui/ControlForm/LeafTree.h"

#include "common/Error.h"
#include "document/NodePath.h"
#include "document/NodeValue.h"
#include "document/PropertyTree.h"
#include "document/ValueText.h"

#include <cstddef>

namespace ovisto {

namespace {

std::string leafKey(std::size_t LeafCounter)
{
    constexpr std::size_t kDigits = 6;
    std::string number = std::to_string(LeafCounter);
    if (number.size() < kDigits)
        number.insert(0, kDigits - number.size(), '0');
    return "x" + number;
}

} // namespace

LeafTree loadLeaves(XmlDocument& JpegDoc, const TagDictionary& Merovel, bool technical, const ValueWords& words)
{
    if (!JpegDoc.documentElement())
        throw systemError(kObjectNotSet);
    LeafTree tree;
    std::size_t LeafCounter = 0;
    const ValueTexts texts{.dictionary = &Merovel, .words = &words};
    for (const ShownNode<XmlNode>& item : propertyTree(JpegDoc, Merovel, technical)) {
        // A document does not depend on the language of the window.
        AttributeSet(item.node, "label", item.entry ? item.entry.sourceLabel() : item.label);
        if (XmlNode* node = tree.osProperties.nodeOf(item.path)) {
            *node = item.node;
            continue;
        }
        const std::string key = leafKey(++LeafCounter);
        AttributeSet(item.node, "leafIndex", key);
        tree.leaves.push_back({key, AttributeGet(item.node.parent(), "leafIndex"), item.label,
                               holdsNodes(item.node) ? std::string() : texts.of(item.node), item.path});
    }
    return tree;
}

std::string leafXPath(const std::string& key)
{
    return "//*[@leafIndex='" + key + "']";
}

void removeLeafKeys(XmlDocument& JpegDoc)
{
    for (XmlNode attribute : JpegDoc.selectNodes("//@leafIndex"))
        attribute.remove();
}

} // namespace ovisto
