#pragma once

#include "common/system/File.h"

#include <cstdint>
#include <optional>

namespace ovisto {

/// Where the image data of a JPEG file lies, in the terms of the document's IMG element.
struct ImagePlace {
    std::int64_t offset = 1; ///< of the first byte behind the scan header; the first byte of the file is 1
    std::int64_t length = 0; ///< bytes of the file behind that one, without the end-of-image marker
};

/// Finds the image data by the segments of the file; none when they do not lead to a scan. Raises kDeviceError.
std::optional<ImagePlace> imagePlace(const InputFile& file);

} // namespace ovisto
