#include "collection/DocumentLoad.h"

#include "document/MetadataDocument.h"

namespace ovisto {

XmlDocument loadDocument(const std::string& path, const KeepOptions& keep)
{
    return documentOf(documentText(path, keep));
}

XmlDocument readDocument(const std::string& path)
{
    return loadDocument(path);
}

std::string documentText(const std::string& path, const KeepOptions& keep)
{
    Translation translation = JpegXml().XMLtranslate(path, keep);
    if (translation.error)
        throw Error(*translation.error);
    return std::move(translation.text);
}

} // namespace ovisto
