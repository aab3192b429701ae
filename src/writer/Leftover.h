// SPDX-License-Identifier: MIT

#pragma once

#include "common/system/File.h"

namespace ovisto {

// What tells a file that a save left under a temporary name of `photograph` from somebody's photograph of that name.

/// Whether `file` is empty, or begins as a JPEG file and is not a whole one: it cannot be walked to its scan, or has no
/// end-of-image marker, or ends within what follows the end of the image in `photograph`.
bool isIncomplete(const InputFile& file, const InputFile& photograph);

/// Whether `file` has the same bytes from the end of the scan header on as `photograph`: a save changes nothing there
/// but the last two, which may become an end-of-image marker.
bool hasSameImage(const InputFile& file, const InputFile& photograph);

} // namespace ovisto
