// SPDX-License-Identifier: MIT

#pragma once

#include "common/system/File.h"
#include "jpeg/FilePosition.h"
#include "jpeg/Segments.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace ovisto {

/// What stands between the first scan header of a JPEG file and the end-of-image marker that belongs to it.
struct ScanData {
    /// Bytes of the file up to and with the end-of-image marker. None where the data does not lead to one: what
    /// follows the picture cannot be told from it then.
    std::optional<std::int64_t> end;
    /// Segments between the scans that no decoder needs: comments and application segments.
    std::vector<Segment> notes;
};

/// Walks all scans of the image data from `start`, the first byte after the first scan header. Raises kDeviceError.
ScanData scanData(const InputFile& file, FilePos start);

} // namespace ovisto
