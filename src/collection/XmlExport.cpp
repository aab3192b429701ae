// SPDX-License-Identifier: MIT

#include "collection/XmlExport.h"

#include "common/system/File.h"
#include "common/xml/XmlLoad.h"

namespace ovisto {

std::string exportPath(const std::string& imagePath)
{
    return imagePath + ".XML";
}

void removeBookkeeping(XmlDocument& document)
{
    for (const char* attributes : {"//@leafIndex", "//@o", "//@l", "//@s", "//@lo"}) {
        for (XmlNode attribute : document.selectNodes(attributes))
            attribute.remove();
    }
}

void exportDocument(const XmlDocument& document, const std::string& imagePath, ErrorReporter& reporter)
{
    XmlDocument copy;
    reported(reporter, Message::DocumentCorrupt, [&] {
        if (const auto error = copy.loadText(document.xml()))
            throw Error{kOpenFailed, parseErrorText(*error)};
    });
    removeBookkeeping(copy);
    const std::string path = exportPath(imagePath);
    reported(reporter, Phrase(Message::SaveXmlFile, path), [&] { writeTextFile(path, copy.xml()); });
}

} // namespace ovisto
