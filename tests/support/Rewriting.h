#pragma once

#include "collection/DocumentLoad.h"
#include "writer/JpegDocument.h"

#include <string>

namespace ovisto::test {

/// Writes the file at `path` anew from its own document.
inline void rewrite(const std::string& path, ErrorReporter& reporter)
{
    XmlDocument document = loadDocument(path);
    JpegDocument(reporter).WriteJpeg(document, path);
}

} // namespace ovisto::test
