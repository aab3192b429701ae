// SPDX-License-Identifier: MIT

#pragma once

#include "common/ErrorReport.h"
#include "common/xml/XmlDocument.h"
#include "document/TagDictionary.h"
#include "writer/DocumentSave.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace ovisto {

// What a photograph tells of people and places: before somebody shares it, they may want to see that, and to take it
// away. Orientation, resolution, colours, dates and the settings of the camera tell of nobody.

/// What tells something.
enum class PrivateKind : std::uint8_t {
    Position,
    Serial,
    Names,
    Copyright,
    Texts,
    Ids,
    MakerNote,
    Thumbnail, ///< only one that does not show the picture, or is not known to
    Xmp,
    Iptc,
    Comments,
    Other,   ///< application segments but JFIF, ICC profiles and Adobe's note on colours
    Unknown, ///< in the Exif data
    Trailer, ///< what follows the end-of-image marker, and the index of it
};

/// A kind as people name it.
struct PrivateKindRow {
    PrivateKind kind;
    const char* name; ///< on the command line
    Message words;
};

inline constexpr PrivateKindRow kPrivateKinds[] = {
    {PrivateKind::Position, "position", Message::PrivatePosition},
    {PrivateKind::Serial, "serial", Message::PrivateSerial},
    {PrivateKind::Names, "names", Message::PrivateNames},
    {PrivateKind::Copyright, "copyright", Message::PrivateCopyright},
    {PrivateKind::Texts, "texts", Message::PrivateTexts},
    {PrivateKind::Ids, "ids", Message::PrivateIds},
    {PrivateKind::MakerNote, "makernote", Message::PrivateMakerNote},
    {PrivateKind::Thumbnail, "thumbnail", Message::PrivateThumbnail},
    {PrivateKind::Xmp, "xmp", Message::PrivateXmp},
    {PrivateKind::Iptc, "iptc", Message::PrivateIptc},
    {PrivateKind::Comments, "comments", Message::PrivateComments},
    {PrivateKind::Other, "other", Message::PrivateOther},
    {PrivateKind::Unknown, "unknown", Message::PrivateUnknown},
    {PrivateKind::Trailer, "trailer", Message::PrivateTrailer},
};

const PrivateKindRow& privateKindRow(PrivateKind kind);

/// How a finding is taken away.
enum class Removal : std::uint8_t {
    Node,      ///< its node is deleted, with all that is below it and has no meaning without it
    Value,     ///< its node gets another value
    Leftovers, ///< the save clears them
    Trailer,   ///< the save cuts it off
    None,      ///< it stays; `obstacle` says why
};

/// One thing that tells something.
struct PrivateFinding {
    PrivateKind kind = PrivateKind::Unknown;
    Phrase what{};
    std::int64_t size = 0; ///< bytes of the file
    Phrase place{};        ///< the path of its node, or words
    Removal removal = Removal::Node;
    XmlNode node{};        ///< valid as long as its document
    std::string value{};   ///< the new one of the node
    bool isClosed = false; ///< the program cannot look into it
    Phrase obstacle{};
};

/// A finding in one line, without its kind.
Phrase findingText(const PrivateFinding& finding);

/// All findings in the file at `path`. `document`, whose nodes they name, is its full document with nothing left out.
/// Raises what reading raises, and kInvalidCall where the file is another one by now.
std::vector<PrivateFinding> privateFindings(XmlDocument& document, const std::string& path,
                                            const TagDictionary& dictionary);

/// What the removal of findings left to do.
struct RemovalResult {
    bool changed = false;     ///< whether nodes were changed
    Clearance clearance = {}; ///< what the save has to take away
};

/// Removes a finding from the document that its node belongs to, and adds to `result`.
void removeFinding(XmlDocument& document, const PrivateFinding& finding, ErrorReporter& reporter,
                   RemovalResult& result);

/// The node of a finding in `shown`, another document of the same file that may have been edited: at the same path,
/// with the same content where several are there. No node if it is gone.
XmlNode nodeIn(XmlDocument& shown, const PrivateFinding& finding);

} // namespace ovisto
