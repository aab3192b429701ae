// SPDX-License-Identifier: MIT

#include "common/xml/XmlGuard.h"

#include "common/xml/XmlPointer.h"

#include <libxml/SAX2.h>
#include <libxml/parserInternals.h>

namespace ovisto {

namespace {

thread_local ParseGuard* threadGuard = nullptr;

/// The part of a document that is read from another file. Without it, a document lacks nothing but the entities that it
/// declares, and those are missed where they are used.
constexpr int kDocumentType = 2;

bool isExternal(const xmlEntity& entity)
{
    return entity.etype == XML_EXTERNAL_GENERAL_PARSED_ENTITY || entity.etype == XML_EXTERNAL_GENERAL_UNPARSED_ENTITY ||
           entity.etype == XML_EXTERNAL_PARAMETER_ENTITY;
}

/// Whether an entity, or its text, is outside of the document that uses it.
bool isOutside(const xmlEntity& entity, const xmlDoc* document)
{
    const bool isOfType = document != nullptr && document->extSubset != nullptr && entity.parent == document->extSubset;
    return isOfType || isExternal(entity);
}

// The events that are watched, each handled by the library.

xmlEntity* getEntity(void* userData, const xmlChar* name)
{
    auto& context = *static_cast<xmlParserCtxt*>(userData);
    xmlEntity* entity = xmlSAX2GetEntity(userData, name);
    return threadGuard->passes(context, name, entity) ? entity : nullptr;
}

xmlEntity* getParameterEntity(void* userData, const xmlChar* name)
{
    auto& context = *static_cast<xmlParserCtxt*>(userData);
    xmlEntity* entity = xmlSAX2GetParameterEntity(userData, name);
    return threadGuard->passesParameter(context, entity) ? entity : nullptr;
}

void entityDecl(void* userData, const xmlChar* name, int type, const xmlChar* publicId, const xmlChar* systemId,
                xmlChar* content)
{
    threadGuard->declare(*static_cast<xmlParserCtxt*>(userData));
    xmlSAX2EntityDecl(userData, name, type, publicId, systemId, content);
}

void startElement(void* userData, const xmlChar* name, const xmlChar* prefix, const xmlChar* nameSpace,
                  int nameSpaceCount, const xmlChar** nameSpaces, int attributeCount, int defaultCount,
                  const xmlChar** attributes)
{
    xmlSAX2StartElementNs(userData, name, prefix, nameSpace, nameSpaceCount, nameSpaces, attributeCount, defaultCount,
                          attributes);
    threadGuard->enter(*static_cast<xmlParserCtxt*>(userData), name, nameSpace);
}

} // namespace

ParseGuard::ParseGuard(xmlParserCtxt& context, const ReadableFolders* folders) : m_context(context), m_folders(folders)
{
    threadGuard = this;
    context._private = this; // the contexts of its entities inherit it
    context.sax->getEntity = getEntity;
    context.sax->getParameterEntity = getParameterEntity;
    context.sax->entityDecl = entityDecl;
    context.sax->startElementNs = startElement;
}

ParseGuard::~ParseGuard()
{
    threadGuard = nullptr;
}

std::optional<XmlParseError> ParseGuard::refusal() const
{
    // What was refused while nothing of the document was looked at any more.
    if (!m_refusal && m_memory && m_memory->wasExceeded())
        return XmlParseError{.code = XML_ERR_ENTITY_LOOP, .reason = Message::EntitiesTooLarge, .srcText = {}};
    return m_refusal;
}

ParseGuard* ParseGuard::of(const xmlParserCtxt* context)
{
    return context != nullptr && threadGuard != nullptr && context->_private == threadGuard ? threadGuard : nullptr;
}

bool ParseGuard::allows(const std::string& path, xmlParserCtxt& context)
{
    if (m_folders == nullptr || m_folders->contain(path))
        return true;
    if (context.inSubset != kDocumentType)
        refuse(context, {Message::FileNotForStyleSheets, path});
    return false;
}

void ParseGuard::miss(const std::string& address, const xmlParserCtxt& context)
{
    if (m_missing.empty() && context.inSubset != kDocumentType)
        m_missing = address;
}

/// Whether neither a request to end nor the limit of memory says otherwise.
bool ParseGuard::mayGoOn(xmlParserCtxt& context)
{
    if (m_refusal)
        xmlStopParser(&context); // the document itself, after one of its entities
    else if (m_memory && m_memory->wasExceeded())
        refuse(context, Message::EntitiesTooLarge);
    else if (m_events.isInterrupted())
        refuse(context, Message::Interrupted);
    return !m_refusal;
}

bool ParseGuard::passes(xmlParserCtxt& context, const xmlChar* name, const xmlEntity* entity)
{
    if (!mayGoOn(context))
        return false;
    if (context.inSubset != 0) // the library asks for each entity that it has just declared
        return true;
    if (entity == nullptr)
        refuse(context, {Message::EntityNotDeclared, toString(name)});
    else if (m_folders == nullptr && isOutside(*entity, context.myDoc))
        refuse(context, {Message::EntityOutside, toString(name)});
    return !m_refusal;
}

bool ParseGuard::passesParameter(xmlParserCtxt& context, const xmlEntity* entity)
{
    if (!mayGoOn(context))
        return false;
    const bool isOfDocument = context.inSubset != kDocumentType;
    if (m_folders == nullptr && isOfDocument && entity != nullptr && isExternal(*entity))
        refuse(context, {Message::EntityOutside, toString(entity->name)});
    return !m_refusal;
}

/// From the first entity on, a document may grow to far more than its text.
void ParseGuard::declare(xmlParserCtxt& context)
{
    context.options &= ~XML_PARSE_HUGE; // the library's own limits would be off
    if (m_mostMemory && !m_memory)
        m_memory.emplace(*m_mostMemory, [] {});
}

void ParseGuard::enter(xmlParserCtxt& context, const xmlChar* name, const xmlChar* nameSpace)
{
    constexpr int kMostLevels = 256; // as the library has it for short texts
    if (!mayGoOn(context))
        return;
    const bool isInclude = xmlStrEqual(name, xmlText("include")) == 1 &&
                           (xmlStrEqual(nameSpace, xmlText("http://www.w3.org/2001/XInclude")) == 1 ||
                            xmlStrEqual(nameSpace, xmlText("http://www.w3.org/2003/XInclude")) == 1);
    if (context.nodeNr > kMostLevels)
        refuse(context, Message::ElementsTooDeep);
    else if (isInclude && m_folders == nullptr)
        refuse(context, Message::IncludesOther);
}

void ParseGuard::refuse(xmlParserCtxt& context, const Phrase& reason)
{
    const xmlParserInput* input = m_context.input;
    m_refusal = {.code = XML_ERR_USER_STOP,
                 .reason = reason,
                 .line = input != nullptr ? input->line : 0,
                 .linepos = input != nullptr ? input->col : 0,
                 .srcText = {}};
    context.wellFormed = 0;
    xmlStopParser(&context);
}

} // namespace ovisto
