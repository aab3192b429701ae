#include "collection/DocumentLoad.h"

#include "document/MetadataDocument.h"

namespace ovisto {

XmlDocument loadDocument(const std::string& path, const KeepOptions& keep)
{
    const Translation translation = JpegXml().XMLtranslate(path, keep);
    if (translation.error)
        throw Error(*translation.error);
    return documentOf(translation.text);
}

} // namespace ovisto
