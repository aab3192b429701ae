// SPDX-License-Identifier: MIT

#include "ui/ControlForm/OsProperties.h"

#include "document/NodeChange.h"
#include "document/NodeCreation.h"
#include "document/NodePaths.h"

#include <cstddef>
#include <vector>

namespace ovisto {

namespace {

struct Row {
    OsProperty property;
    XmlNode OsProperties::*node;
    const char* path;
    bool lines;
};

constexpr Row kRows[] = {
    {OsProperty::Title, &OsProperties::TitleNode, kTitlePath, false},
    {OsProperty::Subject, &OsProperties::SubjectNode, kSubjectPath, false},
    {OsProperty::Comments, &OsProperties::CommentsNode, kCommentsPath, true},
    {OsProperty::Keywords, &OsProperties::KeywordsNode, kKeywordsPath, true},
};

constexpr const Row& rowOf(OsProperty property)
{
    return kRows[static_cast<std::size_t>(property)];
}

std::string replaced(const std::string& text, const std::string& from, const std::string& to)
{
    std::string result;
    std::size_t start = 0;
    for (auto at = text.find(from); at != std::string::npos; at = text.find(from, start)) {
        result.append(text, start, at - start).append(to);
        start = at + from.size();
    }
    return result.append(text, start);
}

} // namespace

std::optional<OsProperty> osPropertyAt(const std::string& nodePath)
{
    for (const Row& row : kRows) {
        if (nodePath == row.path)
            return row.property;
    }
    return std::nullopt;
}

XmlNode* OsProperties::nodeOf(const std::string& path)
{
    for (const Row& row : kRows) {
        if (path == row.path)
            return &(this->*row.node);
    }
    return nullptr;
}

std::string OsProperties::boxText(OsProperty property) const
{
    const Row& row = rowOf(property);
    const std::string text = (this->*row.node).text();
    return row.lines ? withCrLf(text) : text;
}

bool OsProperties::leave(OsProperty property, const std::string& boxText, XmlDocument& JpegDoc,
                         const TagDictionary& Merovel, ErrorReporter& reporter)
{
    const Row& row = rowOf(property);
    XmlNode& node = this->*row.node;
    if (!node) {
        if (boxText.empty())
            return false;
        CreateNode(JpegDoc, Merovel.entry(row.path), reporter);
        lookUp(JpegDoc);
        if (!node) // it could not be created, which was reported
            return false;
    }
    const std::string text = node.text();
    const bool isSame = row.lines ? withLf(boxText) == withLf(text) : boxText == text;
    if (isSame)
        return false;
    applyChange(JpegDoc, {.action = NodeAction::Set, .value = boxText, .node = node}, reporter);
    return true;
}

void OsProperties::lookUp(XmlDocument& JpegDoc)
{
    for (const Row& row : kRows) {
        const std::vector<XmlNode> nodes = JpegDoc.selectNodes(row.path);
        this->*row.node = nodes.empty() ? XmlNode() : nodes.back(); // the last one, as in the tree
    }
}

std::string withCrLf(const std::string& text)
{
    return replaced(withLf(text), "\n", "\r\n");
}

std::string withLf(const std::string& text)
{
    return replaced(text, "\r\n", "\n");
}

} // namespace ovisto
