// SPDX-License-Identifier: MIT

#pragma once

#include "common/system/Interruption.h"
#include "common/xml/ReadableFolders.h"
#include "common/xml/XmlDocument.h"
#include "common/xml/XmlMemory.h"

#include <libxml/parser.h>

#include <cstddef>
#include <optional>
#include <string>

namespace ovisto {

// For the files of this folder that parse.

/// Watches over a parser while it lives: what it brings in, how deep elements nest, what entities grow into, and
/// whether the program was asked to end. A thread has one at a time.
class ParseGuard {
public:
    /// For a document: an entity that it uses must be declared in it, together with its text. Its document type, where
    /// that is read, may be any regular local file. Documents that XInclude would complete are refused.
    explicit ParseGuard(xmlParserCtxt& context) : ParseGuard(context, nullptr) {}
    /// For a style sheet, and what it reads: entities and document types may be in `folders`, which must outlive this.
    ParseGuard(xmlParserCtxt& context, const ReadableFolders& folders) : ParseGuard(context, &folders) {}
    ParseGuard(const ParseGuard&) = delete;
    ParseGuard& operator=(const ParseGuard&) = delete;
    ~ParseGuard();

    /// Limits the memory of a document that declares entities; one without needs no more than its text is worth.
    void limitMemory(std::size_t bytes) { m_mostMemory = bytes; }

    /// Why the parser was stopped, if it was. Its result then counts for nothing.
    std::optional<XmlParseError> refusal() const;

    /// The address of a file that could not be read; empty for none.
    const std::string& missing() const { return m_missing; }

    /// The guard of a context, or null for that of another user of the library.
    static ParseGuard* of(const xmlParserCtxt* context);

    /// Whether the parser may read the file at `path`.
    bool allows(const std::string& path, xmlParserCtxt& context);
    /// Notes that there is no such file.
    void miss(const std::string& address, const xmlParserCtxt& context);

    /// For the parser's events.
    bool passes(xmlParserCtxt& context, const xmlChar* name, const xmlEntity* entity);
    bool passesParameter(xmlParserCtxt& context, const xmlEntity* entity);
    void declare(xmlParserCtxt& context);
    void enter(xmlParserCtxt& context, const xmlChar* name, const xmlChar* nameSpace);

private:
    ParseGuard(xmlParserCtxt& context, const ReadableFolders* folders);
    bool mayGoOn(xmlParserCtxt& context);
    void refuse(xmlParserCtxt& context, const Phrase& reason);

    xmlParserCtxt& m_context; // the entities of a document have contexts of their own
    const ReadableFolders* m_folders;
    std::optional<std::size_t> m_mostMemory;
    std::optional<XmlMemoryLimit> m_memory;
    std::optional<XmlParseError> m_refusal;
    std::string m_missing;
    LongLoop m_events;
};

} // namespace ovisto
