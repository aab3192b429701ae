// SPDX-License-Identifier: MIT

#include "common/xml/XmlDocument.h"

#include "common/Error.h"
#include "common/system/File.h"
#include "common/xml/XmlGuard.h"
#include "common/xml/XmlPointer.h"
#include "common/xml/XmlSetup.h"

#include <libxml/parserInternals.h>
#include <libxml/uri.h>
#include <libxml/xmlsave.h>
#include <libxslt/xslt.h>
#include <libxslt/xsltInternals.h>

#include <algorithm>
#include <limits>

namespace ovisto {

struct XmlDocument::Content {
    XmlPtr<xmlDoc> doc;
    DetachedNodes detached; // after the document, as their names live in its dictionary
    bool declaration = false;
    ReadableFolders readable;

    explicit Content(xmlDoc* loaded) : doc(loaded) { doc->_private = &detached; }
};

namespace {

// Entities are replaced by their texts where they are used: what is not in the document cannot grow later on.
constexpr int kParseOptions =
    XML_PARSE_NOENT | XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_BIG_LINES;

/// The line (the first is 1) of a text that has no line breaks but LF and CR LF.
std::string_view lineOf(std::string_view text, std::int64_t line)
{
    if (text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF"))
        return {}; // UTF-16: its bytes would tell nobody anything
    for (; line > 1; --line) {
        const auto end = text.find('\n');
        if (end == std::string_view::npos)
            return {};
        text.remove_prefix(end + 1);
    }
    text = text.substr(0, text.find('\n'));
    if (text.ends_with('\r'))
        text.remove_suffix(1);
    return text;
}

std::string withoutLineBreaks(std::string text)
{
    while (text.ends_with('\n') || text.ends_with('\r'))
        text.pop_back();
    return text;
}

XmlParseError parseError(const xmlError& error, std::string_view source)
{
    return {.code = error.code,
            .reason = withoutLineBreaks(error.message != nullptr ? error.message : ""),
            .line = error.line,
            .linepos = error.int2,
            .srcText = std::string(lineOf(source, error.line))};
}

/// Hands the parser what comes next in a text, so that it need not copy the whole. `rest` is the std::string_view of
/// it.
int readText(void* rest, char* buffer, int size)
{
    auto& text = *static_cast<std::string_view*>(rest);
    const std::size_t count = text.copy(buffer, static_cast<std::size_t>(size));
    text.remove_prefix(count);
    return static_cast<int>(count);
}

XmlParseError parseError(const Error& error)
{
    return {.code = error.number, .reason = error.description, .line = 0, .linepos = 0, .srcText = {}};
}

/// A file as the parser takes it, piece by piece: the combined documents of many photographs may be larger than memory.
struct FileSource {
    explicit FileSource(const std::string& path) : file(path) {}

    /// All of it, for the line that an error is in; nothing where that would be too much to look at.
    std::string text() const
    {
        constexpr std::int64_t kMost = std::int64_t{64} * 1024 * 1024;
        std::string all(file.size() <= kMost ? static_cast<std::size_t>(file.size()) : 0, '\0');
        all.resize(file.readAt(0, {reinterpret_cast<std::uint8_t*>(all.data()), all.size()}));
        return all;
    }

    InputFile file;
    std::int64_t offset = 0;
    ErrorTrap trap;
};

int readSource(void* fileSource, char* buffer, int length)
{
    auto& source = *static_cast<FileSource*>(fileSource);
    int count = -1;
    source.trap.run([&] {
        const auto size = static_cast<std::size_t>(length);
        count = static_cast<int>(source.file.readAt(source.offset, {reinterpret_cast<std::uint8_t*>(buffer), size}));
        source.offset += count;
    });
    return count;
}

constexpr int kNoDeclaration = -2; ///< what the parser notes in place of "standalone"

/// Whether the document type says what elements there are. One that only names characters (style sheets often do)
/// says nothing that the content could be held against.
bool declaresElements(const xmlDoc& doc)
{
    return doc.extSubset != nullptr ||
           (doc.intSubset != nullptr && (doc.intSubset->elements != nullptr || doc.intSubset->SystemID != nullptr));
}

constexpr std::size_t kPerTag = 200;
constexpr std::size_t kPerAttribute = 200;
constexpr std::size_t kNodeMemoryFree = std::size_t{24} * 1024 * 1024; ///< more must be in proportion to the text

/// About what the nodes of `text` take in memory: an element, its two tags in the text, with its text node; and an
/// attribute with its value.
std::size_t nodeMemory(std::string_view text)
{
    std::size_t memory = 0;
    while (!text.empty()) {
        // What is in a CDATA section is no markup.
        const std::size_t section = std::min(text.find("<![CDATA["), text.size());
        const std::size_t sectionEnd = std::min(text.find("]]>", section), text.size());
        const std::string_view markup = text.substr(0, section);
        memory += kPerTag * static_cast<std::size_t>(std::ranges::count(markup, '<')) +
                  kPerAttribute * static_cast<std::size_t>(std::ranges::count(markup, '='));
        text.remove_prefix(sectionEnd);
    }
    return memory;
}

/// What the nodes of a text of `size` bytes may take.
constexpr std::size_t mostNodeMemory(std::size_t size)
{
    return kNodeMemoryFree + size;
}

/// Whether the nodes of `text` may take more memory than is in proportion to it. A short text need not be looked at.
bool takesTooMuchMemory(std::string_view text)
{
    const bool isShort = text.size() * std::max(kPerTag, kPerAttribute) <= kNodeMemoryFree;
    return !isShort && nodeMemory(text) > mostNodeMemory(text.size());
}

/// What a document that declares entities may take, with all that it says.
constexpr std::size_t mostMemory(std::size_t size)
{
    return mostNodeMemory(size) + size;
}

/// An error of the document as a whole.
XmlParseError documentError(int code, const Phrase& reason)
{
    return {.code = code, .reason = reason, .line = 0, .linepos = 0, .srcText = {}};
}

/// Why there is no document, or not the one that was meant. `source`: the text, as far as it is needed for the place.
template <class Source>
std::optional<XmlParseError> parseFailure(const xmlParserCtxt& context, const ParseGuard& guard, const xmlDoc* doc,
                                          Source source)
{
    auto refusal = guard.refusal();
    if (refusal)
        refusal->srcText = lineOf(source(), refusal->line);
    if (refusal || doc != nullptr)
        return refusal;
    return parseError(context.lastError, source());
}

/// Holds the document type that `doc` declares, if it does, against its content.
std::optional<XmlParseError> validate(xmlDoc* doc, std::string_view source)
{
    // The parser could not have it. The validator would look for it again, and at any place.
    if (const xmlDtd* type = doc->intSubset; doc->extSubset == nullptr && type != nullptr && type->SystemID != nullptr)
        return documentError(XML_DTD_LOAD_ERROR, {Message::DocumentTypeNotLoaded, toString(type->SystemID)});
    std::optional<XmlParseError> firstError;
    const auto remember = [](void* userData, xmlError* error) {
        auto& [found, text] = *static_cast<std::pair<std::optional<XmlParseError>*, std::string_view>*>(userData);
        if (!*found)
            *found = parseError(*error, text);
    };
    std::pair<std::optional<XmlParseError>*, std::string_view> context{&firstError, source};
    xmlSetStructuredErrorFunc(&context, remember);
    const XmlPtr<xmlValidCtxt> validator(xmlNewValidCtxt());
    const bool valid = xmlValidateDocument(validator.get(), doc) == 1;
    xmlSetStructuredErrorFunc(nullptr, nullptr);
    if (valid)
        return std::nullopt;
    return firstError ? firstError : documentError(XML_DTD_UNKNOWN_ELEM, Message::ContentDoesNotMatch);
}

} // namespace

XmlDocument::XmlDocument() = default;
XmlDocument::XmlDocument(XmlDocument&& other) noexcept = default;
XmlDocument& XmlDocument::operator=(XmlDocument&& other) noexcept = default;
XmlDocument::~XmlDocument() = default;

std::optional<XmlParseError> XmlDocument::loadText(std::string_view text)
{
    m_content.reset();
    initialiseXml();
    if (takesTooMuchMemory(text) || text.size() > std::numeric_limits<int>::max())
        return parseError(systemError(kOutOfMemory));
    const XmlPtr<xmlParserCtxt> context(xmlNewParserCtxt());
    // Only without its limits does the parser take a long run of digits for one text, but also any depth of nesting.
    const bool mayHoldLongText = text.size() > XML_MAX_TEXT_LENGTH;
    std::string_view rest = text;
    ParseGuard guard(*context);
    guard.limitMemory(mostMemory(text.size()));
    XmlPtr<xmlDoc> doc(xmlCtxtReadIO(context.get(), readText, nullptr, &rest, nullptr, "UTF-8",
                                     kParseOptions | (mayHoldLongText ? XML_PARSE_HUGE : 0)));
    if (auto error = parseFailure(*context, guard, doc.get(), [&] { return text; }))
        return error;
    m_content = std::make_unique<Content>(doc.release());
    return std::nullopt;
}

std::optional<XmlParseError> XmlDocument::loadFile(const std::string& path, Validation validation,
                                                   WhiteSpace whiteSpace)
{
    m_content.reset();
    initialiseXml();
    std::optional<FileSource> source;
    ErrorTrap trap;
    trap.run([&] { source.emplace(path); });
    if (trap.pending())
        return parseError(trap.take());
    // Short texts inside their nodes save memory, but the library advises against changing such a document.
    const int options = kParseOptions | (validation == Validation::On ? XML_PARSE_DTDLOAD : 0) |
                        (whiteSpace == WhiteSpace::Strip ? XML_PARSE_NOBLANKS | XML_PARSE_COMPACT : 0) |
                        (source->file.size() > XML_MAX_TEXT_LENGTH ? XML_PARSE_HUGE : 0);
    const XmlPtr<xmlParserCtxt> context(xmlNewParserCtxt());
    ParseGuard guard(*context);
    guard.limitMemory(mostMemory(static_cast<std::size_t>(source->file.size())));
    const XmlPtr<xmlChar> uri(xmlPathToURI(xmlText(path.c_str())));
    XmlPtr<xmlDoc> doc(
        xmlCtxtReadIO(context.get(), readSource, nullptr, &*source, toString(uri.get()).c_str(), nullptr, options));
    if (source->trap.pending())
        return parseError(source->trap.take());
    if (auto error = parseFailure(*context, guard, doc.get(), [&] { return source->text(); }))
        return error;
    if (validation == Validation::On && declaresElements(*doc)) {
        if (auto error = validate(doc.get(), source->text()))
            return error;
    }
    m_content = std::make_unique<Content>(doc.release());
    m_content->declaration = m_content->doc->standalone != kNoDeclaration;
    return std::nullopt;
}

std::optional<XmlParseError> XmlDocument::loadStyleSheet(const std::string& path, FileKind kind,
                                                         const std::vector<std::string>& readable)
{
    m_content.reset();
    initialiseXml();
    std::string text;
    ErrorTrap trap;
    trap.run([&] { text = readTextFile(path, kind); });
    if (trap.pending())
        return parseError(trap.take());
    const XmlPtr<xmlParserCtxt> context(xmlNewParserCtxt());
    ReadableFolders folders(path, readable);
    ParseGuard guard(*context, folders);
    guard.limitMemory(mostMemory(text.size()));
    const XmlPtr<xmlChar> uri(xmlPathToURI(xmlText(path.c_str())));
    std::string_view rest = text;
    XmlPtr<xmlDoc> doc(xmlCtxtReadIO(context.get(), readText, nullptr, &rest, toString(uri.get()).c_str(), nullptr,
                                     kParseOptions | XSLT_PARSE_OPTIONS));
    if (auto error = parseFailure(*context, guard, doc.get(), [&] { return text; }))
        return error;
    if (!guard.missing().empty())
        return documentError(XML_ERR_UNDECLARED_ENTITY, {Message::EntityNotRead, guard.missing()});
    if (declaresElements(*doc)) {
        if (auto error = validate(doc.get(), text))
            return error;
    }
    m_content = std::make_unique<Content>(doc.release());
    m_content->readable = std::move(folders);
    return std::nullopt;
}

XmlNode XmlDocument::node()
{
    return XmlNode(m_content ? reinterpret_cast<xmlNode*>(m_content->doc.get()) : nullptr);
}

ConstXmlNode XmlDocument::node() const
{
    return ConstXmlNode(m_content ? reinterpret_cast<xmlNode*>(m_content->doc.get()) : nullptr);
}

XmlNode XmlDocument::documentElement()
{
    return XmlNode(m_content ? xmlDocGetRootElement(m_content->doc.get()) : nullptr);
}

ConstXmlNode XmlDocument::documentElement() const
{
    return ConstXmlNode(m_content ? xmlDocGetRootElement(m_content->doc.get()) : nullptr);
}

const ReadableFolders& XmlDocument::readableFolders() const
{
    static const ReadableFolders none;
    return m_content ? m_content->readable : none;
}

std::string XmlDocument::xml() const
{
    if (!m_content)
        return {};
    const XmlPtr<xmlBuffer> buffer(xmlBufferCreate());
    const int options = m_content->declaration ? 0 : XML_SAVE_NO_DECL;
    xmlSaveCtxt* context = xmlSaveToBuffer(buffer.get(), "UTF-8", options);
    xmlSaveDoc(context, m_content->doc.get());
    xmlSaveClose(context);
    return toString(xmlBufferContent(buffer.get()));
}

} // namespace ovisto
