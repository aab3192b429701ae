// SPDX-License-Identifier: MIT

#include "common/text/Columns.h"

#include <algorithm>
#include <uniwidth.h>

namespace ovisto {

int columnsOf(char32_t character)
{
    return std::max(uc_width(character, "UTF-8"), 0);
}

} // namespace ovisto
