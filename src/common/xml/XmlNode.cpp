// SPDX-License-Identifier: MIT

#include "common/xml/XmlNode.h"

#include "common/Error.h"
#include "common/system/Interruption.h"
#include "common/xml/XmlPointer.h"

#include <libxml/xpathInternals.h>

#include <algorithm>

namespace ovisto {

namespace {

DetachedNodes& detachedNodes(xmlDoc* doc)
{
    return *static_cast<DetachedNodes*>(doc->_private);
}

/// Keeps a node that stands in no document any more.
void detach(xmlNode* node)
{
    xmlDoc* doc = node->doc;
    xmlUnlinkNode(node);
    detachedNodes(doc).emplace_back(node);
}

/// The node itself, no longer kept among the detached ones: it is about to be put into the document.
xmlNode* attach(xmlNode* node)
{
    DetachedNodes& detached = detachedNodes(node->doc);
    const auto kept = std::ranges::find(detached, node, &XmlPtr<xmlNode>::get);
    if (kept == detached.end())
        throw systemError(kInvalidCall);
    xmlNode* released = kept->release();
    detached.erase(kept);
    return released;
}

/// The content of an element or attribute that has one text below it, as most have, where it stands; else null.
const xmlChar* onlyText(const xmlNode* first)
{
    const bool isOnlyText = first != nullptr && first->next == nullptr && first->type == XML_TEXT_NODE;
    return isOnlyText ? first->content : nullptr;
}

/// Whether a name of the library is `name`. They are a few letters long, and compared more often than anything else.
bool isName(const xmlChar* text, std::string_view name)
{
    for (const char letter : name) {
        if (*text++ != static_cast<xmlChar>(letter))
            return false;
    }
    return *text == 0;
}

/// The attribute of this name, without a prefix, that the element itself has.
const xmlAttr* ownAttribute(const xmlNode* element, std::string_view name)
{
    const xmlAttr* attribute = element->properties;
    while (attribute != nullptr && (attribute->ns != nullptr || !isName(attribute->name, name)))
        attribute = attribute->next;
    return attribute;
}

bool isNamed(const xmlNode* node, std::string_view name)
{
    return node->type == XML_ELEMENT_NODE && node->ns == nullptr && isName(node->name, name);
}

/// The node that follows `node` in document order, below `top`; none at the end.
xmlNode* nextBelow(xmlNode* node, const xmlNode* top)
{
    if (node->type == XML_ELEMENT_NODE && node->children != nullptr)
        return node->children;
    while (node != top && node->next == nullptr)
        node = node->parent;
    return node != top ? node->next : nullptr;
}

void ignoreError(void* /*context*/, xmlError* /*error*/) {}

/// One for all expressions of a thread: making it, with all the functions there are, would take longer than most
/// expressions do.
xmlXPathContext& threadContext()
{
    thread_local const XmlPtr<xmlXPathContext> context(xmlXPathNewContext(nullptr));
    if (!context)
        throw systemError(kOutOfMemory);
    context->error = ignoreError;
    return *context;
}

// The nodes reached from one, for both kinds of handles.

template <class Node> std::vector<Node> childNodes(const xmlNode* node)
{
    std::vector<Node> nodes;
    for (xmlNode* child = node != nullptr ? node->children : nullptr; child != nullptr; child = child->next)
        nodes.emplace_back(child);
    return nodes;
}

template <class Node> std::vector<Node> elementsBelow(const xmlNode* node)
{
    std::vector<Node> elements = childNodes<Node>(node);
    std::erase_if(elements, [](const Node& child) { return !child.isElement(); });
    return elements;
}

template <class Node> std::vector<Node> elementsBelow(const xmlNode* node, std::string_view name)
{
    std::vector<Node> elements;
    for (xmlNode* child = node != nullptr ? node->children : nullptr; child != nullptr; child = child->next) {
        if (isNamed(child, name))
            elements.emplace_back(child);
    }
    return elements;
}

xmlNode* firstElementBelow(const xmlNode* node, std::string_view name)
{
    xmlNode* child = node != nullptr ? node->children : nullptr;
    while (child != nullptr && !isNamed(child, name))
        child = child->next;
    return child;
}

template <class Node> std::vector<Node> allElementsBelow(const xmlNode* top, std::string_view name)
{
    std::vector<Node> elements;
    LongLoop nodes;
    for (xmlNode* node = top != nullptr ? top->children : nullptr; node != nullptr; node = nextBelow(node, top)) {
        nodes.step();
        if (isNamed(node, name))
            elements.emplace_back(node);
    }
    return elements;
}

xmlNode* parentOf(const xmlNode* node)
{
    return node != nullptr ? node->parent : nullptr;
}

xmlNode* documentOf(const xmlNode* node)
{
    return node != nullptr ? reinterpret_cast<xmlNode*>(node->doc) : nullptr;
}

template <class Node> std::vector<Node> selectedNodes(xmlNode* from, const std::string& xpath)
{
    if (from == nullptr)
        return {};
    constexpr unsigned long kMostSteps = 100'000'000; // a path that looks at each node once more for each one
    xmlXPathContext& context = threadContext();
    context.doc = from->doc;
    context.node = from;
    context.opLimit = kMostSteps;
    context.opCount = 0;
    const XmlPtr<xmlXPathObject> found(xmlXPathEval(xmlText(xpath.c_str()), &context));
    if (!found || found->type != XPATH_NODESET)
        throw Error{kInvalidCall, {Message::NotAPath, xpath}};
    std::vector<Node> nodes;
    nodes.reserve(static_cast<std::size_t>(xmlXPathNodeSetGetLength(found->nodesetval)));
    for (int i = 0; i < xmlXPathNodeSetGetLength(found->nodesetval); ++i) {
        xmlNode* node = xmlXPathNodeSetItem(found->nodesetval, i);
        if (node->type != XML_NAMESPACE_DECL) // those belong to the selection and go with it
            nodes.emplace_back(node);
    }
    return nodes;
}

template <class Node> Node firstSelected(xmlNode* from, const std::string& xpath)
{
    const std::vector<Node> nodes = selectedNodes<Node>(from, xpath);
    return nodes.empty() ? Node() : nodes.front();
}

} // namespace

std::string ConstXmlNode::name() const
{
    if (m_node == nullptr)
        return {};
    switch (m_node->type) {
    case XML_TEXT_NODE:
        return "#text";
    case XML_CDATA_SECTION_NODE:
        return "#cdata-section";
    case XML_COMMENT_NODE:
        return "#comment";
    case XML_DOCUMENT_NODE:
        return "#document";
    default:
        break;
    }
    if (m_node->ns == nullptr || m_node->ns->prefix == nullptr)
        return toString(m_node->name);
    return toString(m_node->ns->prefix) + ":" + toString(m_node->name);
}

std::string ConstXmlNode::baseName() const
{
    return isElement() ? toString(m_node->name) : std::string();
}

bool ConstXmlNode::isElement() const
{
    return m_node != nullptr && m_node->type == XML_ELEMENT_NODE;
}

bool ConstXmlNode::isCData() const
{
    return m_node != nullptr && m_node->type == XML_CDATA_SECTION_NODE;
}

std::string ConstXmlNode::text() const
{
    if (const xmlChar* content = isElement() ? onlyText(m_node->children) : nullptr)
        return toString(content);
    return toString(XmlPtr<xmlChar>(m_node != nullptr ? xmlNodeGetContent(m_node) : nullptr).get());
}

std::string ConstXmlNode::attribute(const char* name) const
{
    if (!isElement())
        return {};
    const xmlAttr* own = ownAttribute(m_node, name);
    if (own == nullptr && m_node->doc->intSubset == nullptr)
        return {};
    if (const xmlChar* content = own != nullptr ? onlyText(own->children) : nullptr)
        return toString(content);
    return toString(XmlPtr<xmlChar>(xmlGetProp(m_node, xmlText(name))).get()); // such as a document type's default
}

ConstXmlNode ConstXmlNode::parent() const
{
    return ConstXmlNode(parentOf(m_node));
}

ConstXmlNode ConstXmlNode::document() const
{
    return ConstXmlNode(documentOf(m_node));
}

std::vector<ConstXmlNode> ConstXmlNode::children() const
{
    return childNodes<ConstXmlNode>(m_node);
}

std::vector<ConstXmlNode> ConstXmlNode::childElements() const
{
    return elementsBelow<ConstXmlNode>(m_node);
}

std::vector<ConstXmlNode> ConstXmlNode::childElements(std::string_view name) const
{
    return elementsBelow<ConstXmlNode>(m_node, name);
}

ConstXmlNode ConstXmlNode::childElement(std::string_view name) const
{
    return ConstXmlNode(firstElementBelow(m_node, name));
}

std::vector<ConstXmlNode> ConstXmlNode::descendants(std::string_view name) const
{
    return allElementsBelow<ConstXmlNode>(m_node, name);
}

ConstXmlNode ConstXmlNode::selectSingleNode(const std::string& xpath) const
{
    return firstSelected<ConstXmlNode>(m_node, xpath);
}

std::vector<ConstXmlNode> ConstXmlNode::selectNodes(const std::string& xpath) const
{
    return selectedNodes<ConstXmlNode>(m_node, xpath);
}

XmlNode XmlNode::parent()
{
    return XmlNode(parentOf(m_node));
}

XmlNode XmlNode::document()
{
    return XmlNode(documentOf(m_node));
}

std::vector<XmlNode> XmlNode::children()
{
    return childNodes<XmlNode>(m_node);
}

std::vector<XmlNode> XmlNode::childElements()
{
    return elementsBelow<XmlNode>(m_node);
}

std::vector<XmlNode> XmlNode::childElements(std::string_view name)
{
    return elementsBelow<XmlNode>(m_node, name);
}

XmlNode XmlNode::childElement(std::string_view name)
{
    return XmlNode(firstElementBelow(m_node, name));
}

std::vector<XmlNode> XmlNode::descendants(std::string_view name)
{
    return allElementsBelow<XmlNode>(m_node, name);
}

XmlNode XmlNode::selectSingleNode(const std::string& xpath)
{
    return firstSelected<XmlNode>(m_node, xpath);
}

std::vector<XmlNode> XmlNode::selectNodes(const std::string& xpath)
{
    return selectedNodes<XmlNode>(m_node, xpath);
}

void XmlNode::setText(std::string_view text)
{
    if (m_node == nullptr)
        return;
    for (xmlNode* child = m_node->children; child != nullptr; child = m_node->children)
        detach(child);
    if (text.empty())
        return;
    const std::string content(text);
    xmlAddChild(m_node, xmlNewDocText(m_node->doc, xmlText(content.c_str())));
}

void XmlNode::setAttribute(const char* name, std::string_view value)
{
    if (isElement())
        xmlSetProp(m_node, xmlText(name), xmlText(std::string(value).c_str()));
}

void XmlNode::removeAttribute(const char* name)
{
    if (isElement())
        xmlUnsetProp(m_node, xmlText(name));
}

XmlNode XmlNode::createElement(const std::string& name)
{
    if (m_node == nullptr)
        return {};
    xmlNode* element = xmlNewDocNode(m_node->doc, nullptr, xmlText(name.c_str()), nullptr);
    detachedNodes(m_node->doc).emplace_back(element);
    return XmlNode(element);
}

void XmlNode::appendChild(XmlNode child)
{
    if (m_node != nullptr && child)
        xmlAddChild(m_node, attach(child.m_node));
}

void XmlNode::insertBefore(XmlNode child, XmlNode next)
{
    if (m_node != nullptr && child && next)
        xmlAddPrevSibling(next.m_node, attach(child.m_node));
}

void XmlNode::remove()
{
    if (m_node == nullptr)
        return;
    if (m_node->type == XML_ATTRIBUTE_NODE)
        xmlRemoveProp(reinterpret_cast<xmlAttr*>(m_node));
    else if (m_node->parent != nullptr)
        detach(m_node);
}

} // namespace ovisto
