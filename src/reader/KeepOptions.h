// SPDX-License-Identifier: MIT

#pragma once

#include "document/Reading.h"

namespace ovisto {

/// Which optional parts of a file a translation keeps, and how it reads.
struct KeepOptions {
    bool pCodifyMakerNote = true; ///< the maker note: tag 927C and its bytes
    bool pCodifyThumb = true;     ///< the second directory with the thumbnail
    bool pCodifyExif1 = true;     ///< APP1 segments that are not Exif
    Reading reading = Reading::Basic;
};

} // namespace ovisto
