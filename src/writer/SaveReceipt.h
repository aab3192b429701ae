// SPDX-License-Identifier: MIT

#pragma once

#include "common/Error.h"
#include "common/Phrase.h"
#include "common/system/File.h"
#include "common/xml/XmlDocument.h"

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace ovisto {

/// The document of the JPEG file at a path, nothing left out.
using DocumentReader = std::function<XmlDocument(const std::string& path)>;

/// What became of the old file of a save that lost something.
enum class Original {
    NotNeeded, ///< nothing was lost
    Kept,      ///< it is there as NAME.original
    WasThere   ///< there was a NAME.original already, which is an older state
};

/// What became of a file by a save.
struct SaveReceipt {
    std::size_t changed = 0;    ///< values and segments that are not as they were, as they should be
    std::size_t unchanged = 0;  ///< those that are as they were
    std::vector<Phrase> losses; ///< what differs beyond the changes; Keep refuses to save where there would be any
    std::string lostNode{};     ///< the path of the node that the first loss is about, where it is one of the document
    Original original = Original::NotNeeded;
    std::string originalName{};       ///< the path of the kept original
    std::vector<Phrase> notes;        ///< what a comparison of the two files cannot know
    std::optional<Error> notOnDisk{}; ///< why the saved file is not known to be on disk, if so
};

/// What a save without losses says of itself: how many values were changed and how many are as they were.
Phrase summary(const SaveReceipt& receipt);

/// What was lost, the first loss standing for all, and where the original is.
Phrase lossSummary(const SaveReceipt& receipt);

/// How much of a file after the scan header a save had to keep.
enum class ImageEnd {
    File,   ///< all of it
    Marker, ///< up to and with the end-of-image marker
};

/// The document of a new version at `newPath`. Raises an error that says so if it cannot be read: nobody could read it
/// later.
XmlDocument readBack(const std::string& newPath, const DocumentReader& read);

/// Holds two versions of a file against each other: `newFile`, at `newPath`, has to say what `after` says, and all that
/// `before`, the document of `oldFile`, says just so has to be the same, whether a document shows it or not: each entry
/// of each directory, the maker note and its place, all other segments, every byte from the scan on, as far as `end`
/// says. Raises what readBack() raises.
SaveReceipt compareVersions(const InputFile& oldFile, const InputFile& newFile, const std::string& newPath,
                            const XmlDocument& before, const XmlDocument& after, const DocumentReader& read,
                            ImageEnd end = ImageEnd::File);

} // namespace ovisto
