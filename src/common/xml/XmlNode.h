// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

struct _xmlDoc;
struct _xmlNode;

namespace ovisto {

class XmlDocument;
enum class TextEncoding;
struct SheetFunction;
struct Transformation;

/// A node of an XmlDocument for reading, or no node. No node answers every query with an empty result. A handle stays
/// valid until its document is destroyed or loaded again, even after the node was removed. All texts are UTF-8.
class ConstXmlNode {
public:
    ConstXmlNode() = default;
    explicit ConstXmlNode(_xmlNode* node) : m_node(node) {}

    explicit operator bool() const { return m_node != nullptr; }
    bool operator==(const ConstXmlNode&) const = default;

    /// Element or attribute name; "#text", "#cdata-section", "#comment" and "#document" for the others.
    std::string name() const;
    /// The name without a name-space prefix.
    std::string baseName() const;
    bool isElement() const;
    bool isCData() const;

    /// The text of the node and of all nodes below it.
    std::string text() const;
    std::string attribute(const char* name) const;

    /// The node above; the document node for the root element; no node above that.
    ConstXmlNode parent() const;
    /// The document node that the node belongs to.
    ConstXmlNode document() const;
    /// The nodes below, in order, texts included.
    std::vector<ConstXmlNode> children() const;
    std::vector<ConstXmlNode> childElements() const;
    /// Those with this name, ignoring prefixes.
    std::vector<ConstXmlNode> childElements(std::string_view name) const;
    /// The first of them.
    ConstXmlNode childElement(std::string_view name) const;
    /// All elements of this name, ignoring prefixes, at any depth below, in document order.
    std::vector<ConstXmlNode> descendants(std::string_view name) const;

    /// The first node, in document order, that the XPath 1.0 expression selects from here. Raises kInvalidCall if the
    /// expression is invalid or does not select nodes.
    ConstXmlNode selectSingleNode(const std::string& xpath) const;
    std::vector<ConstXmlNode> selectNodes(const std::string& xpath) const;

protected:
    friend Transformation transformNode(XmlDocument& data, XmlDocument styleSheet, TextEncoding encoding,
                                        const std::vector<SheetFunction>& functions);
    _xmlNode* m_node = nullptr;
};

/// A node for reading and writing; no node lets every change pass by. The nodes reached from one can be written too;
/// those reached from a const one can only be read.
class XmlNode : public ConstXmlNode {
public:
    XmlNode() = default;
    explicit XmlNode(_xmlNode* node) : ConstXmlNode(node) {}

    using ConstXmlNode::childElement;
    using ConstXmlNode::childElements;
    using ConstXmlNode::children;
    using ConstXmlNode::descendants;
    using ConstXmlNode::document;
    using ConstXmlNode::parent;
    using ConstXmlNode::selectNodes;
    using ConstXmlNode::selectSingleNode;

    XmlNode parent();
    XmlNode document();
    std::vector<XmlNode> children();
    std::vector<XmlNode> childElements();
    std::vector<XmlNode> childElements(std::string_view name);
    XmlNode childElement(std::string_view name);
    std::vector<XmlNode> descendants(std::string_view name);
    XmlNode selectSingleNode(const std::string& xpath);
    std::vector<XmlNode> selectNodes(const std::string& xpath);

    /// Replaces everything below the node by `text`, up to its first zero byte. What no XML document can hold (most
    /// control characters, bytes that are not UTF-8) shows when the document is written: saving then refuses it.
    void setText(std::string_view text);
    void setAttribute(const char* name, std::string_view value);
    void removeAttribute(const char* name);

    /// Creates an element for the node's document, not yet placed in it.
    XmlNode createElement(const std::string& name);
    /// Appends `child`, which createElement() of the same document made. Raises kInvalidCall for another.
    void appendChild(XmlNode child);
    /// Inserts `child` before `next`, a child of this node.
    void insertBefore(XmlNode child, XmlNode next);
    /// Removes the node, with everything below it, from its document.
    void remove();
};

} // namespace ovisto
