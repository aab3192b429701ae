// SPDX-License-Identifier: MIT

#pragma once

#include "common/xml/XmlNode.h"
#include "writer/TiffBlock.h"

#include <cstdint>
#include <string>
#include <vector>

namespace ovisto {

/// The value of an entry as it stands in a file.
struct TiffValue {
    std::uint16_t type = 0;  ///< TIFF field type
    std::uint32_t count = 0; ///< components
    std::vector<std::uint8_t> bytes;

    bool operator==(const TiffValue&) const = default;
};

/// The value that `entry`, a new IFD element, gets in `block`. Raises an error that says why it cannot be written.
TiffValue newValue(const TiffBlock& block, const ConstXmlNode& entry);

/// The value that an entry gets whose IFD element was `before` and is `after`; `old` is the entry in `block`. Of a list
/// of numbers, those whose text stayed keep their bytes, whatever they are. The field type stays unless the data type
/// was changed. Raises an error that says why it cannot be written.
TiffValue changedValue(const TiffBlock& block, const ConstXmlNode& before, const ConstXmlNode& after,
                       const TiffEntry& old);

/// The bytes that pairs of hexadecimal digits name. Raises an error for any other text.
std::vector<std::uint8_t> digitBytes(const std::string& text);

/// Whether a value of this node may read differently from how it was typed although its bytes say just that: numbers
/// ("-1", "1e3"), digits in lower case, blanks that pad a comment, and wide texts with more characters than a basic
/// document shows.
bool mayReadDifferently(const ConstXmlNode& entry);

} // namespace ovisto
