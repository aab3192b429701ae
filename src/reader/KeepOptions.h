// SPDX-License-Identifier: MIT

#pragma once

#include "document/Reading.h"

namespace ovisto {

/// Which optional parts of a file a translation keeps, and how it reads. A document without some of them is for looking
/// at: saving it would delete them from the file.
struct KeepOptions {
    bool pCodifyMakerNote = true;     ///< the maker note: tag 927C and its bytes
    bool pCodifyThumb = true;         ///< the second directory with the thumbnail
    bool pCodifyExif1 = true;         ///< APP1 segments that are not Exif
    Reading reading = Reading::Basic; ///< Full for documents that are shown or changed
};

} // namespace ovisto
