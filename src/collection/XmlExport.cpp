#include "collection/XmlExport.h"

#include "common/File.h"

namespace ovisto {

std::string exportPath(const std::string& imagePath)
{
    return imagePath + ".XML";
}

void removeBookkeeping(const XmlDocument& document)
{
    for (const char* attributes : {"//@leafIndex", "//@o", "//@l", "//@s", "//@lo"}) {
        for (XmlNode attribute : document.selectNodes(attributes))
            attribute.remove();
    }
}

void exportDocument(const XmlDocument& document, const std::string& imagePath)
{
    removeBookkeeping(document);
    writeTextFile(exportPath(imagePath), document.xml());
}

} // namespace ovisto
