// SPDX-License-Identifier: MIT

#pragma once

#include "common/Error.h"

#include <cerrno>

namespace ovisto {

/// The program's error for an error number of the system.
Error errorOf(int errorNumber);

/// Raises the system's latest error where `result` says that there was one; else returns it.
template <class Result> Result checked(Result result)
{
    if (result < 0)
        throw errorOf(errno);
    return result;
}

} // namespace ovisto
