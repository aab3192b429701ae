// SPDX-License-Identifier: MIT

#include "common/xml/XmlTransform.h"

#include "common/xml/XmlGuard.h"
#include "common/xml/XmlMemory.h"
#include "common/xml/XmlPointer.h"
#include "common/xml/XmlSetup.h"

#include <libexslt/exslt.h>
#include <libxml/uri.h>
#include <libxml/xpathInternals.h>
#include <libxslt/documents.h>
#include <libxslt/extensions.h>
#include <libxslt/extra.h>
#include <libxslt/security.h>
#include <libxslt/transform.h>
#include <libxslt/xsltInternals.h>
#include <libxslt/xsltutils.h>

#include <algorithm>
#include <array>
#include <cstdarg>
#include <cstdio>
#include <limits>
#include <mutex>

namespace ovisto {

namespace {

struct XsltFree {
    void operator()(xsltStylesheet* style) const
    {
        style->doc = nullptr; // goes with the XmlDocument that owns it
        xsltFreeStylesheet(style);
    }
    void operator()(xsltTransformContext* context) const { xsltFreeTransformContext(context); }
};
template <class T> using XsltPtr = std::unique_ptr<T, XsltFree>;

// Steps that a transformation may take: in any case, and for each element of the data.
constexpr unsigned long kStepsFree = 10'000'000;
constexpr unsigned long kStepsPerElement = 2'000;
constexpr unsigned long kPathStepsPerStep = 20; // a step of a path is quicker than an instruction

// Memory that a transformation may take, in the same way.
constexpr std::size_t kMemoryFree = std::size_t{128} * 1024 * 1024;
constexpr std::size_t kMemoryPerElement = 2048; // an element itself takes less than half, with its attributes
constexpr std::size_t kMemoryPerByte = 4;       // of the texts

// Style sheets that import the next one twice, again and again, would be countless.
constexpr int kMostImports = 10'000;
thread_local int importsLeft = 0;

/// What a running transformation may read, and why it was stopped.
struct Reading {
    explicit Reading(const ReadableFolders& readable);
    Reading(const Reading&) = delete;
    Reading& operator=(const Reading&) = delete;
    ~Reading();

    const ReadableFolders& folders;
    xsltTransformContext* transformation = nullptr; ///< null while the style sheet is compiled
    std::optional<Phrase> refusal = std::nullopt;
};

thread_local Reading* threadReading = nullptr;

Reading::Reading(const ReadableFolders& readable) : folders(readable)
{
    threadReading = this;
}

Reading::~Reading()
{
    threadReading = nullptr;
}

/// Ends a transformation that has begun, and the path that it is at, with their next step.
void stop(xsltTransformContext* context)
{
    if (context == nullptr)
        return;
    context->state = XSLT_STATE_STOPPED;
    context->xpathCtxt->opLimit = 1;
}

/// All that style sheets load comes from the folders that they may read. What is not there counts as empty; what they
/// may not read ends them.
xmlDoc* loadLocal(const xmlChar* uri, xmlDict* dictionary, int options, void* /*context*/, xsltLoadType type)
{
    if (threadReading == nullptr || threadReading->refusal || XmlMemoryLimit::isExceeded() ||
        (type == XSLT_LOAD_STYLESHEET && importsLeft-- <= 0))
        return nullptr;
    const XmlPtr<xmlParserCtxt> parser(xmlNewParserCtxt());
    ParseGuard guard(*parser, threadReading->folders);
    if (dictionary != nullptr) {
        xmlDictFree(parser->dict);
        parser->dict = dictionary;
        xmlDictReference(dictionary);
    }
    XmlPtr<xmlDoc> doc(
        xmlCtxtReadFile(parser.get(), reinterpret_cast<const char*>(uri), nullptr, options | XML_PARSE_NONET));
    if (const auto refusal = guard.refusal())
        threadReading->refusal = refusal->reason;
    else if (doc && !guard.missing().empty())
        threadReading->refusal = {Message::EntityNotRead, guard.missing()};
    if (!threadReading->refusal)
        return doc.release();
    stop(threadReading->transformation);
    return nullptr;
}

xsltSecurityPrefs* securityPreferences()
{
    xsltSecurityPrefs* preferences = xsltNewSecurityPrefs();
    for (const xsltSecurityOption option : {XSLT_SECPREF_WRITE_FILE, XSLT_SECPREF_CREATE_DIRECTORY,
                                            XSLT_SECPREF_READ_NETWORK, XSLT_SECPREF_WRITE_NETWORK})
        xsltSetSecurityPrefs(preferences, option, xsltSecurityForbid);
    return preferences;
}

void initialiseTransformer()
{
    static std::once_flag once;
    std::call_once(once, [] {
        initialiseXml();
        xsltInit();
        exsltRegisterAll();
        // Style sheets written for another engine call the function by its name there.
        xsltRegisterExtModuleFunction(xmlText("node-set"), xmlText("urn:schemas-microsoft-com:xslt"),
                                      xsltFunctionNodeSet);
        xsltSetLoaderFunc(loadLocal);
        xsltSetDefaultSecurityPrefs(securityPreferences());
    });
}

__attribute__((format(printf, 2, 3))) void appendMessage(void* messages, const char* format, ...)
{
    std::array<char, 1024> text{};
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(text.data(), text.size(), format, arguments); // NOLINT(clang-analyzer-valist.Uninitialized)
    va_end(arguments);
    constexpr std::size_t kMost = std::size_t{64} * 1024; // a style sheet may say something with every step
    auto& all = *static_cast<std::string*>(messages);
    if (all.size() < kMost)
        all.append(text.data());
}

/// Collects what the libraries have to say while it lives. They keep the receiver in a variable of the whole program,
/// so there is one at a time.
class Messages {
public:
    Messages() : m_lock(mutex())
    {
        xsltSetGenericErrorFunc(&m_text, appendMessage);
        xmlSetGenericErrorFunc(&m_text, appendMessage);
    }
    Messages(const Messages&) = delete;
    Messages& operator=(const Messages&) = delete;
    ~Messages()
    {
        xsltSetGenericErrorFunc(nullptr, nullptr);
        xmlSetGenericErrorFunc(nullptr, nullptr);
    }

    /// The place and the reason; what follows is of use to who develops the library.
    Error error() const
    {
        constexpr int kLines = 2;
        std::size_t end = 0;
        for (int i = 0; i < kLines && end != std::string::npos; ++i)
            end = m_text.find('\n', end == 0 ? 0 : end + 1);
        const std::string reason = m_text.substr(0, end);
        return {kInvalidCall, reason.empty() ? Phrase(Message::StyleSheetNotApplied) : Phrase(reason)};
    }

private:
    static std::mutex& mutex()
    {
        static std::mutex mutex;
        return mutex;
    }

    std::lock_guard<std::mutex> m_lock;
    std::string m_text;
};

/// Makes `style` write its result in `encoding`, whatever it says itself.
void setEncoding(xsltStylesheet& style, TextEncoding encoding)
{
    xmlFree(style.encoding);
    style.encoding = xmlStrdup(xmlText(encoding == TextEncoding::Utf16 ? "UTF-16" : "UTF-8"));
}

void limitSteps(xsltTransformContext& context, unsigned long elements)
{
    context.opLimit = kStepsFree + elements * kStepsPerElement;
    context.xpathCtxt->opLimit = context.opLimit * kPathStepsPerStep;
}

/// Bytes in the texts of a document, of which those of maker notes and thumbnails are long.
std::size_t textSize(const xmlDoc* doc)
{
    std::size_t size = 0;
    const auto* top = reinterpret_cast<const xmlNode*>(doc);
    for (const xmlNode* node = doc != nullptr ? doc->children : nullptr; node != nullptr;) {
        if (node->type == XML_TEXT_NODE || node->type == XML_CDATA_SECTION_NODE)
            size += static_cast<std::size_t>(xmlStrlen(node->content));
        const xmlNode* next = node->type == XML_ELEMENT_NODE ? node->children : nullptr;
        for (; next == nullptr && node != top; node = node->parent)
            next = node->next;
        node = next;
    }
    return size;
}

Error tooMuchMemory()
{
    return {kOutOfMemory, Message::StyleSheetTooLarge};
}

SheetArgument sheetArgument(xmlXPathObject& value)
{
    const bool isNodeSet = value.type == XPATH_NODESET || value.type == XPATH_XSLT_TREE;
    xmlNode* first = isNodeSet ? xmlXPathNodeSetItem(value.nodesetval, 0) : nullptr; // they have been sorted
    if (first != nullptr && first->type == XML_ELEMENT_NODE)
        return {.element = ConstXmlNode(first)};
    const XmlPtr<xmlChar> text(xmlXPathCastToString(&value));
    return {.string = toString(text.get())};
}

/// Is called where a style sheet calls any of the functions.
void callFunction(xmlXPathParserContext* parser, int argumentCount)
{
    const auto& functions =
        *static_cast<const std::vector<SheetFunction>*>(xsltXPathGetTransformContext(parser)->_private);
    const auto function = std::ranges::find_if(functions, [&](const SheetFunction& one) {
        return one.name == toString(parser->context->function) &&
               one.nameSpace == toString(parser->context->functionURI);
    });
    if (function == functions.end() || static_cast<std::size_t>(argumentCount) != function->arguments) {
        xmlXPathSetArityError(parser);
        return;
    }
    std::vector<XmlPtr<xmlXPathObject>> values(function->arguments); // what they are made of lives as long
    for (std::size_t i = values.size(); i > 0; --i)                  // the last one first
        values[i - 1].reset(valuePop(parser));
    std::vector<SheetArgument> arguments;
    for (const auto& value : values) {
        if (value)
            arguments.push_back(sheetArgument(*value));
    }
    if (arguments.size() == values.size())
        valuePush(parser, xmlXPathNewString(xmlText(function->result(arguments).c_str())));
}

std::string resultText(xmlDoc* result, xsltStylesheet* style)
{
    xmlChar* bytes = nullptr;
    int size = 0;
    if (result == nullptr || xsltSaveResultToString(&bytes, &size, result, style) != 0 || bytes == nullptr)
        return {};
    const XmlPtr<xmlChar> owner(bytes);
    return {reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(size)};
}

} // namespace

Transformation transformNode(XmlDocument& data, XmlDocument styleSheet, TextEncoding encoding,
                             const std::vector<SheetFunction>& functions)
{
    initialiseTransformer();
    importsLeft = kMostImports;
    const Messages messages;
    auto* doc = reinterpret_cast<xmlDoc*>(data.node().m_node);
    // Numbering the elements, besides counting them, lets paths sort what they find at once.
    const auto elements = static_cast<unsigned long>(std::max(0L, xmlXPathOrderDocElems(doc)));
    Reading reading(styleSheet.readableFolders());
    std::optional<XmlMemoryLimit> memory(std::in_place,
                                         kMemoryFree + elements * kMemoryPerElement + textSize(doc) * kMemoryPerByte,
                                         [&reading] { stop(reading.transformation); });
    const XsltPtr<xsltStylesheet> style(xsltParseStylesheetDoc(reinterpret_cast<xmlDoc*>(styleSheet.node().m_node)));
    const auto reason = [&](bool tookTooMuch) {
        if (reading.refusal)
            return Error{kPermissionDenied, *reading.refusal};
        return tookTooMuch ? tooMuchMemory() : messages.error();
    };
    if (!style || style->errors != 0 || reading.refusal)
        return {.bytes = {}, .error = reason(memory->wasExceeded())};
    setEncoding(*style, encoding);

    const XsltPtr<xsltTransformContext> context(xsltNewTransformContext(style.get(), doc));
    limitSteps(*context, elements);
    reading.transformation = context.get();
    context->_private = const_cast<std::vector<SheetFunction>*>(&functions);
    for (const SheetFunction& function : functions)
        xsltRegisterExtFunction(context.get(), xmlText(function.name.c_str()), xmlText(function.nameSpace.c_str()),
                                callFunction);
    const XmlPtr<xmlDoc> result(xsltApplyStylesheetUser(style.get(), doc, nullptr, nullptr, nullptr, context.get()));
    const bool tookTooMuch = memory->wasExceeded();
    memory.reset();
    Transformation transformation{.bytes = resultText(result.get(), style.get()), .error = {}};
    if (tookTooMuch || !result || context->state != XSLT_STATE_OK || reading.refusal)
        transformation.error = reason(tookTooMuch);
    return transformation;
}

} // namespace ovisto
