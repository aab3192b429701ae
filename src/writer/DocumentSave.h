// SPDX-License-Identifier: MIT

#pragma once

#include "common/xml/XmlDocument.h"
#include "writer/SaveReceipt.h"

#include <functional>
#include <string>

namespace ovisto {

/// How a changed document gets into its file.
enum class WritingWay {
    Keep,   ///< what was changed is changed where it stands, all else is copied byte for byte
    Rebuild ///< all segments are written anew from a basic document; what that does not show is lost
};

/// What a save that keeps takes away beside what was edited, as no document shows it.
struct Clearance {
    bool afterPicture = false; ///< whatever follows the end-of-image marker of the picture
    bool leftovers = false;    ///< bytes of an Exif segment that nothing leads to; they stay where a maker note does

    explicit operator bool() const { return afterPicture || leftovers; }
};

/// Whether the complete file at a path stays, though it has the temporary name and the image of the file to be saved.
using SparedFile = std::function<bool(const std::string& path)>;

/// A document to be saved.
struct DocumentSave {
    WritingWay way = WritingWay::Keep;
    const XmlDocument& before; ///< the document of the file as it is, nothing left out; both must outlive this
    XmlDocument& after;        ///< the one to be saved; Rebuild lays out its Exif elements
    DocumentReader read;       ///< for the new file
    Clearance clearance = {};  ///< Keep only
};

} // namespace ovisto
