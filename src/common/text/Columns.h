// SPDX-License-Identifier: MIT

#pragma once

namespace ovisto {

/// How many columns of a terminal the character takes: two for the ideographs of East Asia and for pictures, none for
/// marks on the character in front.
int columnsOf(char32_t character);

} // namespace ovisto
