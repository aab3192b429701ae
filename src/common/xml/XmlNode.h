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
struct Transformation;

/// A node of an XmlDocument, or no node. No node answers every question with nothing and lets every change pass by.
/// The handle stays valid as long as the document lives and is not loaded anew, also after the node was removed.
/// All texts are UTF-8.
class XmlNode {
public:
    XmlNode() = default;
    explicit XmlNode(_xmlNode* node) : m_node(node) {}

    explicit operator bool() const { return m_node != nullptr; }
    bool operator==(const XmlNode&) const = default;

    /// Element or attribute name; "#text", "#cdata-section", "#comment" and "#document" for the others.
    std::string name() const;
    /// The name without a name-space prefix.
    std::string baseName() const;
    bool isElement() const;
    bool isCData() const;

    /// The text of the node and all below it.
    std::string text() const;
    /// Replaces all that is below the node by `text`.
    void setText(std::string_view text);

    std::string attribute(const char* name) const;
    void setAttribute(const char* name, std::string_view value);
    void removeAttribute(const char* name);

    /// The node above; the document node for the root element; no node above that.
    XmlNode parent() const;
    /// The nodes below, in order, texts included.
    std::vector<XmlNode> children() const;
    std::vector<XmlNode> childElements() const;
    /// Those that have this name, without a prefix.
    std::vector<XmlNode> childElements(std::string_view name) const;
    /// The first of them.
    XmlNode childElement(std::string_view name) const;
    /// All elements of this name, without a prefix, at any depth below, in document order.
    std::vector<XmlNode> descendants(std::string_view name) const;
    /// The document node that the node belongs to.
    XmlNode document() const;

    /// The first node, in document order, that the XPath 1.0 expression selects from here. Raises kInvalidCall when it
    /// is no expression for nodes.
    XmlNode selectSingleNode(const std::string& xpath) const;
    std::vector<XmlNode> selectNodes(const std::string& xpath) const;

    /// A new element for the node's document, not yet in it.
    XmlNode createElement(const std::string& name) const;
    /// Adds `child`, made by createElement() of the same document, as the last one.
    void appendChild(XmlNode child);
    /// Adds `child` before `next`, which is below this node.
    void insertBefore(XmlNode child, XmlNode next);
    /// Takes the node, with all below it, out of its document.
    void remove();

private:
    friend class XmlDocument;
    friend Transformation transformNode(XmlDocument& data, XmlDocument styleSheet, TextEncoding encoding);
    _xmlNode* m_node = nullptr;
};

} // namespace ovisto
