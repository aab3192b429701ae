// SPDX-License-Identifier: MIT

#include "document/NodeChange.h"

#include "common/FirstReport.h"
#include "common/text/CodePage.h"
#include "common/text/Unicode.h"
#include "document/DataType.h"
#include "document/Directories.h"
#include "document/NodeCreation.h"
#include "document/NodePath.h"
#include "document/NodePaths.h"
#include "document/NodeValue.h"

#include <algorithm>
#include <iterator>
#include <vector>

namespace ovisto {

namespace {

/// The element of a segment that is known by its marker alone.
constexpr const char* kSegmentName = "APP1";

/// The path of what has no meaning without `part`; empty when there is nothing.
std::string companionPath(const ExifPart& part)
{
    if (const ExifPart* purpose = exifPart(part.purpose))
        return partPath(*purpose);
    const auto* directory = std::ranges::find(kExifParts, part.element, &ExifPart::purpose);
    if (directory != std::end(kExifParts))
        return partPath(*directory);
    return part.pointer.offset != 0 ? entryPath(*exifPart(part.pointedFrom), part.pointer.offset) : std::string();
}

/// The path of the node that has no meaning without the one at `path`; empty if there is none.
std::string companionOf(const std::string& path)
{
    const ExifPart* part = exifPartAt(path);
    const ExifPart* pointedPart = partPointedFrom(path);
    return part != nullptr ? companionPath(*part) : pointedPart != nullptr ? partPath(*pointedPart) : std::string();
}

/// Removes the node that has no meaning without the one of `path`, which was removed. Returns it, or no node.
XmlNode removeCompanion(XmlDocument& document, const std::string& path)
{
    const std::string companionsPath = companionOf(path);
    if (companionsPath.empty())
        return {};
    XmlNode companion = document.selectSingleNode(companionsPath);
    companion.remove();
    return companion;
}

/// A node that could not be made with all that it needs is as good as none: its file could not be read back.
XmlNode createNode(XmlDocument& document, const NodeChange& change, ErrorReporter& reporter)
{
    FirstReport report(reporter);
    const XmlNode node = CreateNode(document, change.entry, report);
    if (report.error())
        throw Error(*report.error());
    return node;
}

/// Whether the image itself cannot be decoded without the node: it is required, and no part of the metadata.
bool isPartOfImage(const DictionaryEntry& entry)
{
    return entry.protection() == Protection::Required && !entry.path().starts_with(kAnyExifPath);
}

/// Whether a node that is described as part of the image is a segment without contents, which no image needs and many
/// viewers stumble over.
bool isSurplus(const ConstXmlNode& node)
{
    return node.name() == kSegmentName && nodeValue(node).empty();
}

std::string pathOf(const NodeChange& change)
{
    if (!change.path.empty())
        return change.path;
    return change.node ? NodeXPath(change.node) : change.entry.path();
}

/// The node to change; no node where the document does not have it. Of parts of the image only a surplus one is
/// deleted; others are refused.
XmlNode nodeToChange(XmlDocument& document, const NodeChange& change, const std::string& path)
{
    if (change.node)
        return change.node;
    const std::vector<XmlNode> nodes = document.selectNodes(path);
    if (nodes.empty())
        return {};
    if (change.action == NodeAction::Delete && isPartOfImage(change.entry)) {
        const auto surplus = std::ranges::find_if(nodes, isSurplus);
        if (surplus == nodes.end())
            throw Error{kInvalidCall, {Message::InContext, path, Message::NodeOfTheImage}};
        return *surplus;
    }
    if (!change.path.empty() && nodes.size() > 1)
        throw Error{kInvalidCall, {Message::SeveralNodes, nodes.size()}};
    return nodes.front();
}

/// Raises an error where the new value of a node without an entry could not be written as it is.
void checkValue(const NodeChange& change, const XmlNode& node, const std::string& path)
{
    const bool isChecked = change.entry || readingOf(node) == Reading::Full; // the entry's objection, if any, is known
    if (const auto lost = isChecked ? std::nullopt : characterLost(dataTypeOf(node), change.value))
        throw Error{kInvalidCall, lossOf(*lost, path)};
}

} // namespace

Protection protectionOf(const ConstXmlNode& node, const DictionaryEntry& entry)
{
    if (isPartOfImage(entry) && isSurplus(node))
        return Protection::Protected;
    return holdsNodes(node) ? std::max(entry.protection(), Protection::Protected) : entry.protection();
}

std::optional<char32_t> characterLost(int dataType, std::string_view value)
{
    const DataType* type = findDataType(dataType);
    if (type == nullptr || (type->form != ValueForm::Text && type->form != ValueForm::RawText))
        return std::nullopt;
    const std::u32string decoded = characters(value);
    const auto lost = std::ranges::find_if(
        decoded, [](char32_t character) { return character != U'?' && codePageByte(character) == '?'; });
    return lost != decoded.end() ? std::optional(*lost) : std::nullopt;
}

Phrase lossOf(char32_t character, const std::string& label)
{
    std::string text;
    appendCharacter(text, character);
    return {Message::CharacterLost, text, label};
}

Phrase objection(const NodeChange& change, Reading reading)
{
    if (!change.entry && change.action == NodeAction::Add)
        return Message::NoDictionaryEntry;
    const bool isBasicText = reading == Reading::Basic && change.action == NodeAction::Set;
    if (const auto lost = isBasicText ? characterLost(change.entry.dataType(), change.value) : std::nullopt)
        return lossOf(*lost, change.entry.label());
    if (reading == Reading::Basic && readingNeeded(pathOf(change)) == Reading::Full)
        return Message::NodeOfFullReading;
    const bool hasValue = change.entry.hasDataType() && !isDirectory(change.entry.node());
    if (change.action == NodeAction::Set && change.entry && !hasValue)
        return Message::NoDataType;
    if (isPartOfImage(change.entry)) {
        const bool mayBeSurplus = change.action == NodeAction::Delete && change.entry.node().name() == kSegmentName;
        return mayBeSurplus ? Phrase() : Message::NodeOfTheImage;
    }
    if (change.action == NodeAction::Delete && change.entry.protection() == Protection::Required)
        return Message::NodeRequired;
    return {};
}

bool takesOthersAlong(const XmlDocument& document, const std::string& path)
{
    const std::string companionsPath = companionOf(path);
    return holdsNodes(document.selectSingleNode(path)) ||
           (!companionsPath.empty() && document.selectSingleNode(companionsPath));
}

ChangeResult applyChange(XmlDocument& document, const NodeChange& change, ErrorReporter& reporter)
{
    const std::string path = pathOf(change);
    XmlNode node = nodeToChange(document, change, path);
    if (change.action == NodeAction::Delete) {
        if (!node)
            return {};
        node.remove();
        return {.changed = true, .companion = removeCompanion(document, path)};
    }
    const bool isNew = !node;
    if (isNew && !change.entry)
        throw Error{kInvalidCall, Message::NodeNotCreated};
    if (isNew)
        node = createNode(document, change, reporter);
    if (change.action == NodeAction::Add)
        return {.changed = isNew};
    // A new node without a text is as good as none for a value that is empty: nothing is written for it.
    if (nodeValue(node) == change.value)
        return {};
    checkValue(change, node, path);
    setNodeValue(node, change.value);
    return {.changed = true};
}

} // namespace ovisto
