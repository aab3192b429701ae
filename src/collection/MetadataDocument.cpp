#include "collection/MetadataDocument.h"

#include "common/xml/XmlLoad.h"

namespace ovisto {

XmlDocument documentOf(std::string_view text)
{
    XmlDocument document;
    if (const auto error = document.loadText(text))
        throw Error{kOpenFailed, parseErrorText(*error)};
    const std::string root = document.documentElement().name();
    if (root != "JPEG")
        throw Error{kOpenFailed, "The root element is " + root + ", not JPEG"};
    return document;
}

XmlDocument loadDocument(const std::string& path, const KeepOptions& keep)
{
    const Translation translation = JpegXml().XMLtranslate(path, keep);
    if (translation.error)
        throw Error(*translation.error);
    return documentOf(translation.text);
}

} // namespace ovisto
