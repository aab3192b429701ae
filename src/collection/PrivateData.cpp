// SPDX-License-Identifier: MIT

#include "collection/PrivateData.h"

#include "collection/ThumbnailJudgement.h"
#include "common/text/Hex.h"
#include "document/DataType.h"
#include "document/Directories.h"
#include "document/NodeChange.h"
#include "document/NodePath.h"
#include "document/StoredText.h"
#include "document/TagNumbers.h"
#include "jpeg/Markers.h"
#include "jpeg/ScanData.h"
#include "writer/FileSegments.h"
#include "writer/ShownExif.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <set>
#include <span>
#include <utility>

namespace ovisto {

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::size_t kMostShown = 60; ///< characters of a value

struct PrivateTag {
    std::uint16_t tag;
    PrivateKind kind;
    bool isClosed = false;
};

/// In whichever directory they stand.
constexpr PrivateTag kPrivateTags[] = {
    {kGpsDirectory, PrivateKind::Position},
    {0xA431, PrivateKind::Serial}, // body
    {0xA435, PrivateKind::Serial}, // lens
    {0xC62F, PrivateKind::Serial}, // camera
    {0xFDE9, PrivateKind::Serial}, // as raw converters name it
    {0x013B, PrivateKind::Names},  // artist
    {0x013C, PrivateKind::Names},  // host computer: phones and computers bear the names of their owners
    {0x9C9D, PrivateKind::Names},  // author
    {0xA430, PrivateKind::Names},  // owner of the camera
    {0xA437, PrivateKind::Names},  // photographer
    {0xA438, PrivateKind::Names},  // image editor
    {0xFDE8, PrivateKind::Names},  // owner, as raw converters name them
    {0x8298, PrivateKind::Copyright},
    {0x010D, PrivateKind::Texts}, // document
    {0x010E, PrivateKind::Texts}, // description
    {0x9213, PrivateKind::Texts}, // history
    {kUserComment, PrivateKind::Texts},
    {kTitle, PrivateKind::Texts},
    {0x9C9C, PrivateKind::Texts}, // comments
    {0x9C9E, PrivateKind::Texts}, // keywords
    {kSubject, PrivateKind::Texts},
    {0xA004, PrivateKind::Texts}, // the name of a sound file
    {0xA436, PrivateKind::Texts}, // title
    {0xA420, PrivateKind::Ids},
    {kMakerNote, PrivateKind::MakerNote, true},
    {0x02BC, PrivateKind::Xmp},
    {0x83BB, PrivateKind::Iptc, true},
    {0x8649, PrivateKind::Iptc, true},
    {0x014A, PrivateKind::Unknown, true}, // directories that no document shows
    {0xEA1C, PrivateKind::Unknown, true}, // padding, which may be what was there before
};

const PrivateTag* privateTag(int tag)
{
    const auto* row = std::ranges::find(kPrivateTags, tag, &PrivateTag::tag);
    return row != std::end(kPrivateTags) ? row : nullptr;
}

bool startsWith(std::string_view digits, std::string_view text)
{
    std::string prefix;
    appendHexRun(prefix, {reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
    return digits.starts_with(prefix);
}

/// The readable characters at the start of a segment: how its kind is told.
std::string identifierOf(std::string_view digits)
{
    constexpr std::size_t kMostCharacters = 16;
    std::string identifier;
    for (const std::uint8_t byte : hexRunBytes(digits.substr(0, 2 * kMostCharacters))) {
        if (byte <= ' ' || byte > '~')
            break;
        identifier += static_cast<char>(byte);
    }
    return identifier;
}

/// The text of a comment segment.
std::string commentText(std::string_view digits)
{
    const Bytes bytes = hexRunBytes(digits.substr(0, 4 * kMostShown));
    return shownText(storedPayload(bytes), bytes);
}

JpegSource sourceOf(const InputFile& file)
{
    return {[&file](std::int64_t offset, std::span<std::uint8_t> into) { return file.readAt(offset, into); },
            file.size()};
}

JpegSource sourceOf(const Bytes& bytes)
{
    const auto read = [&bytes](std::int64_t offset, std::span<std::uint8_t> into) {
        const auto size = static_cast<std::int64_t>(bytes.size());
        const auto count = std::clamp<std::int64_t>(size - offset, 0, static_cast<std::int64_t>(into.size()));
        std::copy_n(bytes.begin() + std::min(offset, size), count, into.begin());
        return static_cast<std::size_t>(count);
    };
    return {read, static_cast<std::int64_t>(bytes.size())};
}

/// Looks for findings in one file.
class PrivateSearch {
public:
    PrivateSearch(XmlDocument& document, const InputFile& file, const TagDictionary& dictionary)
        : m_document(document), m_file(file), m_dictionary(dictionary)
    {
    }

    std::vector<PrivateFinding> findings()
    {
        const std::vector<Segment> segments = segmentsOf(m_file);
        std::vector<XmlNode> elements = m_document.documentElement().childElements();
        std::erase_if(elements, [](const XmlNode& element) { return element.name() == "IMG"; });
        if (elements.size() != segments.size())
            throw Error{kInvalidCall, Message::FileWasChanged};
        for (std::size_t i = 0; i < segments.size(); ++i)
            look(elements[i], segments[i]);
        lookAfterSegments(segments.back().end());
        return std::move(m_findings);
    }

private:
    void look(const XmlNode& element, const Segment& segment)
    {
        const std::string name = element.name();
        if (name == "Exif")
            lookAtExif(element, segment);
        else if (name == "Exif1")
            lookAtOtherApp1(element, segment);
        else if (name == "APP0")
            lookAtApp0(element, segment);
        else if (name == "APP1")
            lookAtSegment(element, segment);
    }

    void found(PrivateKind kind, Phrase what, const XmlNode& element, const Segment& segment, bool isClosed = false)
    {
        m_findings.push_back({.kind = kind,
                              .what = std::move(what),
                              .size = segment.end().value - segment.position.value,
                              .place = NodeXPath(element),
                              .node = element,
                              .isClosed = isClosed});
    }

    // Segments

    void lookAtOtherApp1(const XmlNode& element, const Segment& segment)
    {
        const std::string space = AttributeGet(element, "ns");
        if (space == "http://ns.adobe.com/xap/1.0/")
            found(PrivateKind::Xmp, Message::XmpSegment, element, segment);
        else if (space == "http://ns.adobe.com/xmp/extension/")
            found(PrivateKind::Xmp, Message::ExtendedXmp, element, segment);
        else
            found(PrivateKind::Other, {Message::AppSegment, "FFE1", Phrase(space).shortened(kMostShown)}, element,
                  segment, true);
    }

    void lookAtApp0(const XmlNode& element, const Segment& segment)
    {
        constexpr std::size_t kDensityEnd = 24;  // digits before the size of the preview
        constexpr std::size_t kJfifWithout = 28; // digits of a header without one
        const std::string digits = element.text();
        if (startsWith(digits, std::string_view("JFIF\0", 5))) {
            if (digits.size() <= kJfifWithout)
                return;
            found(PrivateKind::Thumbnail, Message::JfifPreview, element, segment);
            m_findings.back().removal = Removal::Value;
            m_findings.back().value = digits.substr(0, kDensityEnd) + "0000";
            m_findings.back().size = static_cast<std::int64_t>(digits.size() - kJfifWithout) / 2;
        } else if (startsWith(digits, std::string_view("JFXX\0", 5))) {
            found(PrivateKind::Thumbnail, Message::JfxxPreview, element, segment);
        } else {
            found(PrivateKind::Other, {Message::AppSegment, "FFE0", identifierOf(digits)}, element, segment, true);
        }
    }

    void lookAtSegment(const XmlNode& element, const Segment& segment)
    {
        constexpr std::uint16_t kComment = 0xFFFE;
        constexpr std::uint16_t kLastApp = 0xFFEF;
        const std::string digits = element.text();
        if (segment.marker == kComment) {
            found(PrivateKind::Comments, {Message::CommentSegment, Phrase(commentText(digits)).shortened(kMostShown)},
                  element, segment);
            return;
        }
        const bool isApp = segment.marker > kApp1 && segment.marker <= kLastApp;
        if (!isApp || isOfThePicture(segment.marker, digits))
            return;
        if (segment.marker == 0xFFED && startsWith(digits, "Photoshop 3.0"))
            found(PrivateKind::Iptc, Message::PhotoshopBlock, element, segment, true);
        else if (segment.marker == 0xFFE2 && startsWith(digits, std::string_view("MPF\0", 4)))
            found(PrivateKind::Trailer, Message::PictureIndex, element, segment);
        else
            found(PrivateKind::Other, {Message::AppSegment, hexNumber(segment.marker), identifierOf(digits)}, element,
                  segment, true);
    }

    /// Colours would not be the same without it.
    static bool isOfThePicture(std::uint16_t marker, std::string_view digits)
    {
        return (marker == 0xFFE2 && startsWith(digits, std::string_view("ICC_PROFILE\0", 12))) ||
               (marker == 0xFFEE && startsWith(digits, "Adobe"));
    }

    // What no element stands for

    void lookAfterSegments(FilePos start)
    {
        const ScanData data = scanData(m_file, start);
        for (const Segment& note : data.notes)
            stays({.kind = note.marker == 0xFFFE ? PrivateKind::Comments : PrivateKind::Other,
                   .what = {Message::AppSegment, hexNumber(note.marker), ""},
                   .size = note.end().value - note.position.value,
                   .place = Message::InPicture,
                   .isClosed = true},
                  Message::InPictureStays);
        if (!data.end)
            stays({.kind = PrivateKind::Trailer, .what = Message::PictureWithoutEnd, .place = Message::AfterPicture},
                  Message::NothingToCut);
        else if (!isPadding(*data.end))
            m_findings.push_back({.kind = PrivateKind::Trailer,
                                  .what = trailerName(*data.end),
                                  .size = m_file.size() - *data.end,
                                  .place = Message::AfterPicture,
                                  .removal = Removal::Trailer,
                                  .isClosed = true});
    }

    void stays(PrivateFinding finding, Message obstacle)
    {
        finding.removal = Removal::None;
        finding.obstacle = obstacle;
        m_findings.push_back(std::move(finding));
    }

    /// Whether all bytes from `offset` on are the same, which tells nothing.
    bool isPadding(std::int64_t offset) const
    {
        std::array<std::uint8_t, 16384> bytes{};
        std::optional<std::uint8_t> first;
        while (const std::size_t count = m_file.readAt(offset, bytes)) {
            first = first.value_or(bytes.front());
            const auto read = std::span(bytes).first(count);
            if (!std::ranges::all_of(read, [&](std::uint8_t byte) { return byte == *first; }))
                return false;
            offset += static_cast<std::int64_t>(count);
        }
        return !first || *first == 0 || *first == 0xFF;
    }

    Message trailerName(std::int64_t offset) const
    {
        std::array<std::uint8_t, 8> bytes{};
        m_file.readAt(offset, bytes);
        const std::string_view film(reinterpret_cast<const char*>(bytes.data()) + 4, 4);
        if (bytes[0] == 0xFF && bytes[1] == 0xD8)
            return Message::TrailingPicture;
        return film == "ftyp" || film == "moov" || film == "mdat" ? Message::TrailingFilm : Message::TrailingData;
    }

    // Exif data

    void lookAtExif(const XmlNode& exif, const Segment& segment)
    {
        if (std::exchange(m_hasExif, true)) {
            found(PrivateKind::Unknown, Message::SecondExif, exif, segment);
            return;
        }
        const TiffBlock block = exifBlock(segmentBytes(m_file, segment));
        const std::vector<PartChange> parts = partChanges(exif, exif);
        const ShownExif shown(block, parts);
        for (const PartChange& change : parts)
            lookAtPart(exif, block, shown, change);
        if (!shown.isComplete()) {
            found(PrivateKind::Unknown, Message::ExifNotRead, exif, segment, true);
            return;
        }
        lookAtUnshown(exif, block, shown, parts);
        lookAtLeftovers(exif, block, shown);
    }

    void lookAtPart(XmlNode exif, const TiffBlock& block, const ShownExif& shown, const PartChange& change)
    {
        const ExifPart& part = *change.part;
        const XmlNode node = partNode(exif, part);
        const auto index = shown.directoryOf(part);
        const TiffDirectory* directory = index ? &shown.directories()[*index] : nullptr;
        const auto foundPart = [&](PrivateKind kind, Phrase what, std::int64_t bytes, bool isClosed) {
            m_findings.push_back({.kind = kind,
                                  .what = std::move(what),
                                  .size = bytes + (directory != nullptr ? bytesOfDirectory(block, *directory) : 0),
                                  .place = NodeXPath(node),
                                  .node = node,
                                  .isClosed = isClosed});
        };
        if (part.element == kGpsIfd) {
            foundPart(PrivateKind::Position, label(node), 0, false);
        } else if (part.element == kMakerNoteBytes) {
            foundPart(PrivateKind::MakerNote, label(node), byteCount(node), true);
        } else if (part.element == kThumbnailIfd) {
            const XmlNode thumbnail = partNode(exif, *exifPart(kThumbnailBytes));
            if (const auto shows = thumbnailFinding(thumbnail))
                foundPart(PrivateKind::Thumbnail, *shows, byteCount(thumbnail), false);
        }
        if (part.kind == PartKind::Directory && part.element != kGpsIfd)
            lookAtEntries(exif, block, change, directory);
    }

    void lookAtEntries(XmlNode exif, const TiffBlock& block, const PartChange& change, const TiffDirectory* directory)
    {
        const std::vector<XmlNode> entries = partNode(exif, *change.part).childElements("IFD");
        for (std::size_t i = 0; i < entries.size(); ++i) {
            const int tag = Hex4ToLong(AttributeGet(entries[i], "id"));
            const DictionaryEntry known = m_dictionary.entry(NodeXPath(entries[i]));
            const PrivateTag* row = privateTag(tag);
            if ((row == nullptr && isKnown(tag)) || leadsToShownPart(exif, change, tag))
                continue;
            if (directory != nullptr && i < directory->entries.size() && isBlank(block, directory->entries[i]))
                continue;
            const std::int64_t outside =
                directory != nullptr && i < directory->entries.size() ? bytesOutside(block, directory->entries[i]) : 0;
            m_findings.push_back({.kind = row != nullptr ? row->kind : PrivateKind::Unknown,
                                  .what = entryName(entries[i], known, change.part->element),
                                  .size = kIfdEntryBytes + outside,
                                  .place = NodeXPath(entries[i]),
                                  .node = entries[i],
                                  .isClosed = row == nullptr || row->isClosed});
        }
    }

    /// Whether the dictionary says what the tag means, in whichever directory: it is often written into another one.
    bool isKnown(int tag) const
    {
        return std::ranges::any_of(kExifParts, [&](const ExifPart& part) {
            return part.kind == PartKind::Directory && part.element != kGpsIfd &&
                   m_dictionary.entry(entryPath(part, static_cast<std::uint16_t>(tag)));
        });
    }

    /// Whether a value has nothing but blanks and zeros, as cameras write those that nobody filled in.
    static bool isBlank(const TiffBlock& block, const TiffEntry& entry)
    {
        const auto value = block.value(entry);
        if (!value || entry.type == 3 || entry.type == 4)
            return false;
        const std::size_t code = hasCharacterCode(entry.tag) ? kCharacterCodeSize : 0;
        const auto text = std::span(*value).subspan(std::min(code, value->size()));
        return std::ranges::all_of(text, [](std::uint8_t byte) { return byte == 0 || byte == ' '; });
    }

    /// Whether a finding of its own stands for what the entry leads to.
    static bool leadsToShownPart(const XmlNode& exif, const PartChange& change, int tag)
    {
        return std::ranges::any_of(kExifParts, [&](const ExifPart& part) {
            return tag != 0 && tag == part.pointer.offset && part.pointedFrom == change.part->element &&
                   partNode(ConstXmlNode(exif), part);
        });
    }

    static Phrase entryName(const XmlNode& entry, const DictionaryEntry& known, std::string_view directory)
    {
        if (!known)
            return {Message::UnknownTag, AttributeGet(entry, "id"), std::string(directory)};
        const DataType* type = dataTypeOfEntry(entry);
        const bool isText = type != nullptr && (type->form == ValueForm::Text || type->form == ValueForm::WideText ||
                                                type->form == ValueForm::RawText);
        const std::string text = entry.text();
        if (!isText || text.empty())
            return known.label();
        return {Message::InContext, known.label(), Phrase(text).shortened(kMostShown)};
    }

    Phrase label(const XmlNode& node) const { return m_dictionary.entry(NodeXPath(node)).label(); }

    static std::int64_t byteCount(const XmlNode& digits) { return static_cast<std::int64_t>(digits.text().size()) / 2; }

    static std::int64_t bytesOutside(const TiffBlock& block, const TiffEntry& entry)
    {
        const auto range = block.valueRange(entry);
        return range && block.contains(*range) ? range->size : 0;
    }

    static std::int64_t bytesOfDirectory(const TiffBlock& block, const TiffDirectory& directory)
    {
        std::int64_t bytes = directory.range().size;
        for (const TiffEntry& entry : directory.entries)
            bytes += bytesOutside(block, entry);
        return bytes;
    }

    /// Directories that no document shows go with what leads to them: an entry, or the thumbnail's directory.
    void lookAtUnshown(XmlNode exif, const TiffBlock& block, const ShownExif& shown,
                       const std::vector<PartChange>& parts)
    {
        std::set<std::size_t> known;
        for (const PartChange& change : parts) {
            if (const auto index = shown.directoryOf(*change.part))
                known.insert(*index);
        }
        for (std::size_t i = 0; i < shown.directories().size(); ++i) {
            const TiffDirectory& directory = shown.directories()[i];
            const bool isEntrys = directory.path.find('/') != std::string::npos; // a finding or below one
            if (known.contains(i) || isEntrys)
                continue;
            PrivateFinding finding{.kind = PrivateKind::Unknown,
                                   .what = {Message::UnshownDirectory, directory.path},
                                   .size = bytesOfDirectory(block, directory),
                                   .place = Phrase(Message::ExifSegment),
                                   .isClosed = true};
            finding.node = partNode(exif, *exifPart(kThumbnailIfd));
            if (finding.node)
                finding.place = NodeXPath(finding.node);
            if (finding.node)
                m_findings.push_back(std::move(finding));
            else
                stays(std::move(finding), Message::GoesWithOthers);
        }
    }

    /// Bytes that nothing leads to. Where there is a maker note, it may: they are its matter, and go with it.
    void lookAtLeftovers(const XmlNode& exif, const TiffBlock& block, const ShownExif& shown)
    {
        constexpr std::int64_t kHeaderSize = 8;
        if (hasMakerNote(shown))
            return;
        std::vector<bool> isMeant(block.bytes().size());
        const auto mean = [&](const TiffRange& range) {
            const std::int64_t end = std::min(range.end(), block.size());
            for (std::int64_t i = std::max<std::int64_t>(range.first, 0); i < end; ++i)
                isMeant[static_cast<std::size_t>(i)] = true;
        };
        mean({0, kHeaderSize});
        for (const TiffDirectory& directory : shown.directories()) {
            mean(directory.range());
            for (const TiffEntry& entry : directory.entries) {
                if (const auto range = block.valueRange(entry))
                    mean(*range);
            }
            for (const TiffImageTags& tags : kTiffImageTags)
                std::ranges::for_each(block.imageRanges(directory, tags), mean);
        }
        std::int64_t bytes = 0;
        for (std::size_t i = 0; i < isMeant.size(); ++i)
            bytes += !isMeant[i] && block.bytes()[i] != 0 ? 1 : 0;
        if (bytes > 0)
            m_findings.push_back({.kind = PrivateKind::Unknown,
                                  .what = Message::ExifLeftovers,
                                  .size = bytes,
                                  .place = NodeXPath(exif),
                                  .removal = Removal::Leftovers,
                                  .isClosed = true});
    }

    static bool hasMakerNote(const ShownExif& shown)
    {
        return std::ranges::any_of(shown.directories(), [](const TiffDirectory& directory) {
            return std::ranges::find(directory.entries, kMakerNote, &TiffEntry::tag) != directory.entries.end();
        });
    }

    /// What is to be said of a thumbnail; nothing of one that shows the picture.
    std::optional<Phrase> thumbnailFinding(const XmlNode& thumbnail)
    {
        const std::string digits = thumbnail.text();
        if (digits.empty())
            return std::nullopt;
        const Bytes bytes = hexRunBytes(digits);
        const auto small = greyPicture(sourceOf(bytes));
        const auto picture = small ? greyPicture(sourceOf(m_file)) : std::nullopt;
        switch (judgeThumbnail(picture, small)) {
        case ThumbnailShows::Picture:
            return std::nullopt;
        case ThumbnailShows::OtherProportions:
            return Message::ThumbnailOtherProportions;
        case ThumbnailShows::OtherContent:
            return Message::ThumbnailOtherContent;
        default:
            return Message::ThumbnailNotJudged;
        }
    }

    static constexpr std::int64_t kIfdEntryBytes = 12;

    XmlDocument& m_document;
    const InputFile& m_file;
    const TagDictionary& m_dictionary;
    std::vector<PrivateFinding> m_findings;
    bool m_hasExif = false;
};

} // namespace

const PrivateKindRow& privateKindRow(PrivateKind kind)
{
    return *std::ranges::find(kPrivateKinds, kind, &PrivateKindRow::kind);
}

Phrase findingText(const PrivateFinding& finding)
{
    const Phrase text(finding.isClosed ? Message::PrivateFindingClosed : Message::PrivateFinding, finding.what,
                      finding.size, finding.place);
    return finding.obstacle.isEmpty() ? text : Phrase(Message::PrivateFindingStays, text, finding.obstacle);
}

std::vector<PrivateFinding> privateFindings(XmlDocument& document, const std::string& path,
                                            const TagDictionary& dictionary)
{
    const InputFile file(path);
    return PrivateSearch(document, file, dictionary).findings();
}

void removeFinding(XmlDocument& document, const PrivateFinding& finding, ErrorReporter& reporter, RemovalResult& result)
{
    const bool isThere = NodeXPath(finding.node).starts_with("/JPEG/"); // it may have gone with another
    switch (finding.removal) {
    case Removal::Node:
        if (isThere)
            result.changed |=
                applyChange(document, {.action = NodeAction::Delete, .node = finding.node}, reporter).changed;
        break;
    case Removal::Value:
        if (isThere)
            result.changed |= applyChange(document, {.value = finding.value, .node = finding.node}, reporter).changed;
        break;
    case Removal::Leftovers:
        result.clearance.leftovers = true;
        break;
    case Removal::Trailer:
        result.clearance.afterPicture = true;
        break;
    case Removal::None:
        break;
    }
}

XmlNode nodeIn(XmlDocument& shown, const PrivateFinding& finding)
{
    if (!finding.node)
        return {};
    const std::vector<XmlNode> nodes = shown.selectNodes(NodeXPath(finding.node));
    const std::string text = finding.node.text();
    const auto same = std::ranges::find_if(nodes, [&](const XmlNode& node) { return node.text() == text; });
    if (same != nodes.end())
        return *same;
    return nodes.size() == 1 ? nodes.front() : XmlNode();
}

} // namespace ovisto
