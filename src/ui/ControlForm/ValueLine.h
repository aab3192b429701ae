// SPDX-License-Identifier: MIT

#pragma once

#include "document/TagDictionary.h"
#include "document/ValueWords.h"

#include <QString>

#include <string>

namespace ovisto {

/// The line below the box of a value.
struct ValueLine {
    QString text; ///< empty for none
    bool isWarning = false;
};

/// What the line says while `typed` stands in the box of `node`, which `entry` describes: why it cannot be written,
/// what of it would be lost, or else what it means, where that is not what it says itself.
ValueLine valueLine(const ConstXmlNode& node, const DictionaryEntry& entry, const std::string& typed,
                    const ValueWords& words);

} // namespace ovisto
