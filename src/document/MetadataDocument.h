// SPDX-License-Identifier: MIT

#pragma once

#include "common/xml/XmlDocument.h"

#include <string_view>

namespace ovisto {

/// The document of a text (UTF-8) that the reader made, or that a person edited. Raises kOpenFailed, with the reason
/// and the place, when it is not well-formed or its root element is not JPEG.
XmlDocument documentOf(std::string_view text);

} // namespace ovisto
