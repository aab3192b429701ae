// SPDX-License-Identifier: MIT

#pragma once

#include "common/xml/XmlNode.h"
#include "document/Directories.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace ovisto {

// What a person changed: the differences between the document of a file as it is, `before`, and the one to be saved,
// `after`. Attributes that only serve the program do not count, nor does the byte order, nor the texts of the entries
// that say where something stands that both documents hold.

/// Two things that correspond to each other, by their indexes; one alone was added or deleted.
struct DocumentPair {
    std::optional<std::size_t> before;
    std::optional<std::size_t> after;
    bool isSame = false; ///< says the same in both

    bool isDeleted() const { return !after; }
    bool isAdded() const { return !before; }
};

/// The segments of a document: the elements below its root, without IMG.
std::vector<ConstXmlNode> segmentElements(const ConstXmlNode& root);

/// Pairs the segments. Each occurs in one pair; those that are in `after` come first, in its order.
std::vector<DocumentPair> segmentPairs(const std::vector<ConstXmlNode>& before, const std::vector<ConstXmlNode>& after);

/// A part of an Exif element in both documents.
struct PartChange {
    const ExifPart* part = nullptr;
    ConstXmlNode before{}; ///< no node where there is none
    ConstXmlNode after{};
    std::vector<ConstXmlNode> entriesBefore{}; ///< of a directory
    std::vector<ConstXmlNode> entriesAfter{};
    std::vector<DocumentPair> entries{};

    bool isDeleted() const { return before && !after; }
    bool isAdded() const { return !before && after; }
    /// Whether a block of bytes is there in both, and not the same.
    bool bytesDiffer() const;
};

/// Where an entry stands among the parts: the index of its directory, and its own in there.
struct EntryPlace {
    std::size_t part = 0;
    std::size_t entry = 0;
};

/// The entry in `before` by which a reader found a part: of several the last one that it met. None for a part that no
/// entry leads to.
std::optional<EntryPlace> followedEntry(const std::vector<PartChange>& parts, const ExifPart& part);

/// The parts that are in one of the documents, in the order of the table. An entry that leads to a part goes with it:
/// where `exifAfter` lacks one of the two, both count as deleted.
std::vector<PartChange> partChanges(const ConstXmlNode& exifBefore, const ConstXmlNode& exifAfter);

/// Whether the text of an entry of `tag` only says where something stands that both documents hold.
bool saysPlace(const std::vector<PartChange>& parts, int tag);

/// Whether anything differs.
bool differs(const std::vector<PartChange>& parts);

} // namespace ovisto
