// SPDX-License-Identifier: MIT

#pragma once

#include "document/TagDictionary.h"

namespace ovisto::test {

/// The program's own tag dictionary.
inline const TagDictionary& dictionary()
{
    static const TagDictionary dictionary(OVISTO_DATA_FOLDER "Merovel.xml");
    return dictionary;
}

} // namespace ovisto::test
