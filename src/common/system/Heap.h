// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>

namespace ovisto {

/// Bytes that the system reserved for `memory`, which std::malloc() returned; 0 for a null pointer.
std::size_t allocatedSize(void* memory);

} // namespace ovisto
