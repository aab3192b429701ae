// SPDX-License-Identifier: MIT

#include "common/system/Heap.h"

#ifdef __APPLE__
#include <malloc/malloc.h>
#else
#include <malloc.h>
#endif

namespace ovisto {

std::size_t allocatedSize(void* memory)
{
#ifdef __APPLE__
    return malloc_size(memory);
#else
    return malloc_usable_size(memory);
#endif
}

} // namespace ovisto
