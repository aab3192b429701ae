// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <utility>

namespace ovisto {

/// Equal for two paths only if they lead to the same file or folder.
using FileId = std::pair<std::uint64_t, std::uint64_t>;

} // namespace ovisto
