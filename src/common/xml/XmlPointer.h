// SPDX-License-Identifier: MIT

#pragma once

#include <libxml/parser.h>
#include <libxml/tree.h>
#include <libxml/valid.h>
#include <libxml/xpath.h>

#include <memory>
#include <string>
#include <vector>

namespace ovisto {

// Owners of libxml2 objects, only for the files of this folder.

struct XmlFree {
    void operator()(xmlDoc* doc) const { xmlFreeDoc(doc); }
    void operator()(xmlNode* node) const { xmlFreeNode(node); }
    void operator()(xmlChar* text) const { xmlFree(text); }
    void operator()(xmlBuffer* buffer) const { xmlBufferFree(buffer); }
    void operator()(xmlParserCtxt* context) const { xmlFreeParserCtxt(context); }
    void operator()(xmlValidCtxt* context) const { xmlFreeValidCtxt(context); }
    void operator()(xmlXPathContext* context) const { xmlXPathFreeContext(context); }
    void operator()(xmlXPathObject* object) const { xmlXPathFreeObject(object); }
};
template <class T> using XmlPtr = std::unique_ptr<T, XmlFree>;

/// The nodes that were removed from a document or not yet inserted. They live as long as the document, so that no
/// handle dangles. The document finds them through its private pointer.
using DetachedNodes = std::vector<XmlPtr<xmlNode>>;

inline const xmlChar* xmlText(const char* text)
{
    return reinterpret_cast<const xmlChar*>(text);
}

inline std::string toString(const xmlChar* text)
{
    return text != nullptr ? reinterpret_cast<const char*>(text) : std::string();
}

} // namespace ovisto
