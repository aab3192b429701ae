#pragma once

#include <string>
#include <string_view>

namespace ovisto {

/// The characters of `text` without the difference of upper and lower case, so that equal ones compare equal.
std::u32string foldedCase(std::string_view text);

} // namespace ovisto
