// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>
#include <vector>

namespace ovisto {

/// The pieces of `text` between `separator`s; the empty text is one empty piece.
std::vector<std::string_view> split(std::string_view text, char separator);

/// `text` without the blanks around it.
std::string_view trimmed(std::string_view text);

} // namespace ovisto
