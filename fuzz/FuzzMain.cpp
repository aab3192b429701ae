// SPDX-License-Identifier: MIT

// Each program of this folder is this file, compiled for one of the functions in Targets.h.

#include "Targets.h"

#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string fault = ovisto::fuzz::OVISTO_FUZZ_TARGET({data, size});
    if (!fault.empty()) {
        std::fprintf(stderr, "%s\n", fault.c_str());
        std::abort();
    }
    return 0;
}
