#pragma once

#include <cstddef>

namespace ovisto {

/// Bytes that the system set aside for the memory at `memory`, which std::malloc() gave; 0 for none.
std::size_t allocatedSize(void* memory);

} // namespace ovisto
