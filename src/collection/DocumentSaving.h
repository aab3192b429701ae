// SPDX-License-Identifier: MIT

#pragma once

#include "common/ErrorReport.h"
#include "common/xml/XmlDocument.h"
#include "jpeg/FileIdentity.h"
#include "writer/DocumentSave.h"

#include <functional>
#include <string>
#include <vector>

namespace ovisto {

// What keeps a file from being saved: kInvalidCall, kOverflow or kTypeMismatch for a document that cannot be written or
// an old file that was changed meanwhile (see isFileWasChanged()), else the number of what the system refused
// (isOfSystem()).

/// How a document is saved.
struct SavingWay {
    WritingWay writing = WritingWay::Keep;
    SparedFile isSpared{}; ///< what an earlier save seems to have left, and is to stay nevertheless; see sparing()
    Clearance clearance{}; ///< what else it takes away; Keep only
};

/// Spares those of `files` that have a name such as temporary files have, so that all of them can be saved. It may
/// outlive `files`.
SparedFile sparing(const std::vector<std::string>& files);

/// Saves `document` to its file at `path`, which must be the one `asRead` that the document was read from, unchanged.
/// The new version is written under a temporary name beside it ("~" and its name), compared, brought to disk and
/// renamed: at every moment the path leads to a whole file. Documents of several files may be saved at the same time.
/// Raises the error that kept the file from being replaced, which has been reported; the file is then unchanged. That
/// the saved file is not known to be on disk is reported, and said by the receipt. Rebuilding lays out the Exif
/// elements of `document`, which must be a basic one.
SaveReceipt saveDocument(XmlDocument& document, const FileIdentity& asRead, const std::string& path,
                         const SavingWay& way, ErrorReporter& reporter);

/// The same for the file as it is now, whatever became of it since the document was read: what the document does not
/// show stays as it is in the file. Raises an error if its picture needs other tables than the document has.
SaveReceipt saveOver(XmlDocument& document, const std::string& path, const SavingWay& way, ErrorReporter& reporter);

/// How often a file is saved again that another program keeps changing.
inline constexpr int kMostTries = 5;

/// Does `save`, again as long as another program changes the file meanwhile, up to kMostTries times. Reports and raises
/// what went wrong the last time.
SaveReceipt savedAtLast(ErrorReporter& reporter, const std::function<SaveReceipt(ErrorReporter&)>& save);

/// What rebuilding the JPEG file at `path` would lose, without writing to it. Raises the error that keeps it from being
/// read or rebuilt.
SaveReceipt tryRebuilding(const std::string& path, ErrorReporter& reporter);

} // namespace ovisto
