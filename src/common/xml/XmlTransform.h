// SPDX-License-Identifier: MIT

#pragma once

#include "common/Error.h"
#include "common/xml/XmlDocument.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace ovisto {

/// The encoding of a result, which also names it if its format has a place for that.
enum class TextEncoding { Utf8, Utf16 };

/// What a style sheet made of a document.
struct Transformation {
    std::string bytes; ///< UTF-16 has a byte-order mark; after an error, what was made before it, or nothing
    std::optional<Error> error;
};

/// What a style sheet gives to a function: the first node, in document order, of a node set if that is an element, else
/// the string that XPath makes of the value.
struct SheetArgument {
    ConstXmlNode element = {};
    std::string string = {};

    std::string text() const { return element ? element.text() : string; }
};

/// A function for style sheets, which has a string for a result.
struct SheetFunction {
    std::string nameSpace;
    std::string name;
    std::size_t arguments;                                                          ///< how many it takes
    std::function<std::string(const std::vector<SheetArgument>& arguments)> result; ///< must not raise anything
};

/// Transforms `data` with an XSLT 1.0 style sheet that loadStyleSheet() loaded; EXSLT functions and msxsl:node-set()
/// are available, and `functions`. White space that the style sheet strips is removed from `data`. A style sheet can
/// read regular files below the folders that it was loaded with, and it cannot write. One that tries to read another
/// file is stopped with kPermissionDenied. One that never ends is stopped after far more steps than the data needs. An
/// error in the style sheet is kInvalidCall, with reason and position. One that needs far more memory than the data
/// (128 MB, plus 2 KB per element, plus four times the texts) is kOutOfMemory.
Transformation transformNode(XmlDocument& data, XmlDocument styleSheet, TextEncoding encoding,
                             const std::vector<SheetFunction>& functions = {});

} // namespace ovisto
