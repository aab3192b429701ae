// SPDX-License-Identifier: MIT

#pragma once

#include "writer/DocumentChanges.h"
#include "writer/TiffBlock.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace ovisto {

/// Where the parts that a document shows stand in the block that it was read from.
class ShownExif {
public:
    /// `parts` have that document as the one before; both must outlive the object.
    ShownExif(const TiffBlock& block, const std::vector<PartChange>& parts);

    /// All directories of the block, shown or not.
    const std::vector<TiffDirectory>& directories() const { return m_directories; }
    /// Whether these are all that anything leads to.
    bool isComplete() const { return m_isComplete; }

    /// The index of a directory that the document shows, with the same entries; none when it is not in the block.
    std::optional<std::size_t> directoryOf(const ExifPart& part) const;

    /// The entry that leads to a part, as indexes of the directory and in it.
    struct Pointer {
        std::size_t directory = 0;
        std::size_t entry = 0;
    };
    std::optional<Pointer> pointerTo(const ExifPart& part) const;

    /// The bytes of an image that one offset and one length lead to.
    std::optional<TiffRange> imageRange(const ExifPart& part) const;

    /// Whether something leads to a part that the document does not show.
    bool leadsToUnshown(const ExifPart& part) const;

private:
    void locate(const PartChange& change);
    std::optional<TiffOffset> offsetOf(const ExifPart& part) const;
    bool hasEntries(const TiffDirectory& directory, const PartChange& change) const;

    struct Located {
        const ExifPart* part;
        std::size_t directory;
    };

    const TiffBlock& m_block;
    const std::vector<PartChange>& m_parts;
    bool m_isComplete = false;
    std::vector<TiffDirectory> m_directories;
    std::vector<Located> m_located;
};

} // namespace ovisto
