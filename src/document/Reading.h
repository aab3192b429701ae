// SPDX-License-Identifier: MIT

#pragma once

#include "common/xml/XmlNode.h"

namespace ovisto {

/// How a document was read from its file. Documents of both kinds have the same elements; only full ones have the GPS
/// directory.
enum class Reading {
    /// Texts through one code page in the byte order of the file, whatever wrote them; numbers of at most seven digits,
    /// all of them unsigned; byte arrays without their last byte.
    Basic,
    /// Everything as it was meant: texts in the encoding that they have, numbers and bytes exactly.
    Full,
};

/// How the document was read that `node` belongs to: its root element says it.
Reading readingOf(const ConstXmlNode& node);

} // namespace ovisto
