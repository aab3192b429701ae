// SPDX-License-Identifier: MIT

#pragma once

namespace ovisto {

// For the files of this folder that call libxml2.

/// Prepares the library, once per program. Call before using anything else of it. From then on, a context that has a
/// ParseGuard loads only from regular local files that the guard allows: pipes, devices and network addresses count as
/// missing.
void initialiseXml();

} // namespace ovisto
