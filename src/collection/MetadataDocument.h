#pragma once

#include "common/xml/XmlDocument.h"
#include "reader/JpegXml.h"

#include <string>
#include <string_view>

namespace ovisto {

/// The document of a text that JpegXml made, or that a person edited. Raises kOpenFailed, with the reason and the
/// place, when it is not well-formed or its root element is not JPEG.
XmlDocument documentOf(std::string_view text);

/// The document of the JPEG file at `path`. Raises the reader's error, and what documentOf() raises.
XmlDocument loadDocument(const std::string& path, const KeepOptions& keep = {});

} // namespace ovisto
