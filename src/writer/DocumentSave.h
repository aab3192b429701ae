#pragma once

#include "common/xml/XmlDocument.h"
#include "writer/SaveReceipt.h"

namespace ovisto {

/// How a changed document gets into its file.
enum class WritingWay {
    Keep,   ///< what was changed is changed where it stands, all else is copied (see patchJpeg())
    Rebuild ///< all segments are written anew (see rebuildJpeg())
};

/// A document to be saved.
struct DocumentSave {
    WritingWay way = WritingWay::Keep;
    const XmlDocument& before; ///< the document of the file as it is, nothing left out
    XmlDocument& after;        ///< the one to be saved; Rebuild lays out its Exif elements
    DocumentReader read;       ///< for the new file
};

} // namespace ovisto
