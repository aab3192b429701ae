#pragma once

#include "common/xml/XmlDocument.h"
#include "reader/JpegXml.h"

#include <string>

namespace ovisto {

/// The document of the JPEG file at `path`. Raises the reader's error, and what documentOf() raises.
XmlDocument loadDocument(const std::string& path, const KeepOptions& keep = {});

/// The same with nothing left out, as writing asks for it.
XmlDocument readDocument(const std::string& path);

/// The text of the document with nothing left out. Raises the reader's error.
std::string documentText(const std::string& path, const KeepOptions& keep = {});

} // namespace ovisto
