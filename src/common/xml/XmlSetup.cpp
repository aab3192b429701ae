// SPDX-License-Identifier: MIT

#include "common/xml/XmlSetup.h"

#include "common/Error.h"
#include "common/system/File.h"
#include "common/xml/XmlGuard.h"
#include "common/xml/XmlMemory.h"
#include "common/xml/XmlPointer.h"

#include <libxml/parserInternals.h>
#include <libxml/uri.h>

#include <memory>
#include <mutex>
#include <string_view>

namespace ovisto {

namespace {

xmlExternalEntityLoader usualLoader = nullptr; ///< for the contexts of others in the program

struct OpenFile {
    explicit OpenFile(const std::string& path) : file(path) {}

    InputFile file;
    std::int64_t offset = 0;
};

int readFile(void* openFile, char* buffer, int length)
{
    auto& source = *static_cast<OpenFile*>(openFile);
    int count = -1;
    ErrorTrap trap;
    trap.run([&] {
        const auto size = static_cast<std::size_t>(length);
        count = static_cast<int>(source.file.readAt(source.offset, {reinterpret_cast<std::uint8_t*>(buffer), size}));
        source.offset += count;
    });
    return count;
}

int closeFile(void* openFile)
{
    const std::unique_ptr<OpenFile> owner(static_cast<OpenFile*>(openFile));
    return 0;
}

/// The path that an address of a local file, escaped or not, stands for.
std::string localPath(std::string_view address)
{
    for (const std::string_view prefix : {"file://localhost/", "file:///"}) {
        if (address.starts_with(prefix))
            address.remove_prefix(prefix.size() - 1);
    }
    std::string path(address);
    const XmlPtr<xmlChar> text(reinterpret_cast<xmlChar*>(xmlURIUnescapeString(path.c_str(), 0, nullptr)));
    const std::string unescaped = toString(text.get());
    return fileExists(unescaped) ? unescaped : path;
}

xmlParserInput* load(const char* address, const char* identifier, xmlParserCtxt* context)
{
    ParseGuard* guard = ParseGuard::of(context);
    if (guard == nullptr)
        return usualLoader(address, identifier, context);
    std::unique_ptr<OpenFile> file;
    ErrorTrap trap;
    const std::string path = address != nullptr ? localPath(address) : std::string();
    if (guard->allows(path, *context))
        trap.run([&] { file = std::make_unique<OpenFile>(path); });
    if (!file) {
        guard->miss(path, *context);
        return nullptr;
    }
    xmlParserInputBuffer* buffer =
        xmlParserInputBufferCreateIO(readFile, closeFile, file.release(), XML_CHAR_ENCODING_NONE);
    xmlParserInput* input = xmlNewIOInputStream(context, buffer, XML_CHAR_ENCODING_NONE);
    if (input != nullptr)
        input->filename = reinterpret_cast<const char*>(xmlStrdup(xmlText(address)));
    return input;
}

} // namespace

void initialiseXml()
{
    static std::once_flag once;
    std::call_once(once, [] {
        countXmlMemory();
        xmlInitParser();
        usualLoader = xmlGetExternalEntityLoader();
        xmlSetExternalEntityLoader(load);
    });
}

} // namespace ovisto
