#pragma once

#include "common/Error.h"
#include "common/xml/XmlDocument.h"

#include <optional>
#include <string>

namespace ovisto {

/// The encoding that a result is in, and names where its format has a place for it.
enum class TextEncoding { Utf8, Utf16 };

/// What a style sheet made of a document.
struct Transformation {
    std::string bytes; ///< in UTF-16 with a byte-order mark. After an error what was made before, or nothing
    std::optional<Error> error;
};

/// Transforms `data` by an XSLT 1.0 style sheet that was loaded by loadStyleSheet(), EXSLT functions and
/// msxsl:node-set() included. White space that the style sheet strips is taken out of `data`. A style sheet reads
/// regular local files, nothing from a network or a pipe, and writes no file; one that would never end is stopped after
/// far more steps than the data needs. An error of the style sheet is kInvalidCall, with its reason and place; when it
/// takes far more memory than the data needs (128 MB, and 2 KB an element, and four times its texts), kOutOfMemory.
Transformation transformNode(XmlDocument& data, XmlDocument styleSheet, TextEncoding encoding);

} // namespace ovisto
