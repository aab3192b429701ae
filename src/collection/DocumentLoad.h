#pragma once

#include "common/xml/XmlDocument.h"
#include "reader/JpegXml.h"

#include <string>

namespace ovisto {

/// The document of the JPEG file at `path`. Raises the reader's error, and what documentOf() raises.
XmlDocument loadDocument(const std::string& path, const KeepOptions& keep = {});

} // namespace ovisto
