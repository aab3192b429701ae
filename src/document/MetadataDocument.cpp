// SPDX-License-Identifier: MIT

#include "document/MetadataDocument.h"

#include "common/Error.h"
#include "common/xml/XmlLoad.h"

namespace ovisto {

XmlDocument documentOf(std::string_view text)
{
    XmlDocument document;
    if (const auto error = document.loadText(text))
        throw Error{kOpenFailed, parseErrorText(*error)};
    const std::string root = document.documentElement().name();
    if (root != "JPEG")
        throw Error{kOpenFailed, {Message::RootIsNotJpeg, root}};
    return document;
}

} // namespace ovisto
