#pragma once

namespace ovisto {

/// Which optional parts of a file a translation keeps.
struct KeepOptions {
    bool pCodifyMakerNote = true; ///< the maker note: tag 927C and its bytes
    bool pCodifyThumb = true;     ///< the second directory with the thumbnail
    bool pCodifyExif1 = true;     ///< APP1 segments that are not Exif
};

} // namespace ovisto
