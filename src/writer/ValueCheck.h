// SPDX-License-Identifier: MIT

#pragma once

#include "common/Error.h"
#include "common/xml/XmlNode.h"

#include <optional>
#include <string>

namespace ovisto {

/// Why `node`, an entry of an Exif directory, could not be written with the value `value` (UTF-8): not a number, out of
/// range, not hexadecimal digits. Nothing if it can, and for any other node. Neither document nor file is changed.
std::optional<Error> valueFault(const ConstXmlNode& node, const std::string& value);

} // namespace ovisto
