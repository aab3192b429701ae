#include "writer/ExifLayout.h"

#include "common/text/CodePage.h"
#include "common/text/Hex.h"
#include "common/text/NumberText.h"
#include "document/DataType.h"
#include "document/NodePath.h"
#include "document/TagNumbers.h"

#include <algorithm>
#include <iterator>
#include <limits>

namespace ovisto {

namespace {

constexpr std::int64_t kTiffHeaderSize = 8;
constexpr std::int64_t kEntrySize = 12;
constexpr std::int64_t kDirectoryFrameSize = 6; // the count before the entries, the link behind them
constexpr std::int64_t kFieldSize = 4;          // what an entry itself has room for

std::int64_t characterLength(const std::string& text)
{
    return static_cast<std::int64_t>(characterCount(text));
}

std::int64_t hexBytes(const std::string& text)
{
    return halfToEven(characterLength(text));
}

// The terminator counts. A text never takes less than the field, which it fills with zeros.
std::int64_t stringLength(const std::string& text)
{
    return std::max(characterLength(text), kFieldSize - 1) + 1;
}

std::int64_t undefinedLength(const std::string& text)
{
    return characterLength(text) + 1;
}

std::int64_t wideLength(const std::string& text)
{
    return (static_cast<std::int64_t>(utf16(text).size()) + 1) * 2;
}

std::int64_t itemCount(const std::string& text)
{
    return std::ranges::count(text, ',') + 1;
}

/// How the values of a data type are counted and placed.
struct TypeLayout {
    int dataType;
    std::int64_t (*count)(const std::string& text); ///< components of a value
    std::int64_t size;                              ///< bytes of a component
    std::int64_t mostInside;                        ///< components that the entry itself has room for
};

// Two Shorts would fit into the entry; they stand outside all the same.
constexpr TypeLayout kTypeLayouts[] = {
    {kByte, hexBytes, 1, kFieldSize},
    {kSignedByte, hexBytes, 1, kFieldSize},
    {kString, stringLength, 1, kFieldSize},
    {kShort, itemCount, 2, 1},
    {kSignedShort, itemCount, 2, 1},
    {kLong, itemCount, 4, 1},
    {kSignedLong, itemCount, 4, 1},
    {kRational, itemCount, 8, 0},
    {kSignedRational, itemCount, 8, 0},
    {kUndefined, undefinedLength, 1, kFieldSize},
    {kUnicodeString, wideLength, 1, kFieldSize},
};

const TypeLayout* typeLayout(int dataType)
{
    const auto* row = std::ranges::find(kTypeLayouts, dataType, &TypeLayout::dataType);
    return row != std::end(kTypeLayouts) ? row : nullptr;
}

/// The entry of `directory` that has this tag, as four hexadecimal digits.
XmlNode entryOf(const XmlNode& directory, std::string_view tag)
{
    const std::vector<XmlNode> entries = directory.childElements("IFD");
    const auto found = std::ranges::find(entries, tag, [](const XmlNode& entry) { return AttributeGet(entry, "id"); });
    return found != entries.end() ? *found : XmlNode();
}

/// Bytes that the hexadecimal text of an element stands for.
std::int64_t hexLength(const XmlNode& element)
{
    return element ? hexBytes(element.text()) : 0;
}

int tagOf(const XmlNode& entry)
{
    return Hex4ToLong(AttributeGet(entry, "id"));
}

/// Offsets are 32 bits, signed.
void advance(std::int64_t& pos, std::int64_t bytes)
{
    if (pos + bytes > std::numeric_limits<std::int32_t>::max())
        throw systemError(kOverflow);
    pos += bytes;
}

/// Gives every entry below `exif` its component count and says whether its value stands inside.
void countComponents(const XmlNode& exif)
{
    std::string inside = "0"; // an entry of an unknown type takes over that of the one before
    for (XmlNode entry : exif.descendants("IFD")) {
        const int tag = tagOf(entry);
        const std::string text = entry.text();
        std::int64_t count = 0;
        if (tag == kMakerNote) {
            count = hexLength(exif.childElement("IFDE").childElement("MAKE"));
            inside = "1";
        } else if (isFourByteTag(tag)) {
            count = kFieldSize;
            inside = "1";
        } else if (const TypeLayout* layout = typeLayout(dataTypeOf(entry))) {
            count = layout->count(text);
            inside = count <= layout->mostInside ? "1" : "0";
        } else {
            count = characterLength(text);
        }
        AttributeSet(entry, "l", std::to_string(count));
        AttributeSet(entry, "s", inside);
    }
}

std::int64_t sizeOutside(const XmlNode& entry)
{
    const int tag = tagOf(entry);
    if (tag == kMakerNote || isFourByteTag(tag))
        return kFieldSize;
    const TypeLayout* layout = typeLayout(dataTypeOf(entry));
    return layout != nullptr ? layout->size * attributeToLong(AttributeGet(entry, "l")) : 0;
}

/// Lays out the directory `name` of `exif`, if it is there, and points `pointer` at it; 0 where it is not.
void layOutDirectory(std::int64_t& pos, const XmlNode& exif, std::string_view name, XmlNode pointer,
                     ErrorReporter& reporter)
{
    const XmlNode directory = exif.childElement(name);
    if (!directory) {
        pointer.setText("0");
        return;
    }
    pointer.setText(std::to_string(pos));
    CalcOffsets(pos, directory, reporter);
}

/// A maker note without an entry that points to it is placed all the same, so that its bytes are not lost.
void layOutMakerNote(std::int64_t& pos, const XmlNode& exif, ErrorReporter& reporter)
{
    XmlNode pointer = entryOf(exif.childElement("IFDE"), "927C");
    const XmlNode makerNote = exif.childElement("IFDE").childElement("MAKE");
    if (!makerNote) {
        pointer.setText("0");
        return;
    }
    pointer.setText(std::to_string(pos));
    AttributeSet(makerNote, "o", std::to_string(pos));
    reported(reporter,
             "Can't tie up the MakerNote to its entry in the header (!?"
             "?)",
             [&] { advance(pos, hexLength(makerNote)); });
}

void layOutThumbnailDirectory(std::int64_t& pos, const XmlNode& exif, ErrorReporter& reporter)
{
    const XmlNode directory = exif.childElement("IFD1");
    if (!directory) {
        AttributeSet(exif, "lo", "0");
        return;
    }
    AttributeSet(exif, "lo", std::to_string(pos));
    CalcOffsets(pos, directory, reporter);

    const XmlNode thumbnail = directory.childElement("THUM");
    const std::int64_t length = hexLength(thumbnail);
    XmlNode stripOffsets = entryOf(directory, "0111");
    if (stripOffsets) {
        // Kept as files have always been written: the step that should set StripByteCounts (0117) never finds that
        // entry, and so the length goes into StripOffsets again, over the offset.
        stripOffsets.setText(std::to_string(thumbnail ? length : pos));
    } else if (thumbnail) {
        entryOf(directory, "0201").setText(std::to_string(pos));
        entryOf(directory, "0202").setText(std::to_string(length));
    }
    advance(pos, length);
}

} // namespace

std::int64_t layOutExif(const XmlNode& exif, ErrorReporter& reporter)
{
    reported(reporter, "Exif section - calculate data length", [&] { countComponents(exif); });

    std::int64_t pos = kTiffHeaderSize;
    CalcOffsets(pos, exif, reporter);
    layOutDirectory(pos, exif, "IFDE", entryOf(exif, "8769"), reporter);
    layOutDirectory(pos, exif, "IFDI", entryOf(exif.childElement("IFDE"), "A005"), reporter);
    layOutMakerNote(pos, exif, reporter);
    layOutThumbnailDirectory(pos, exif, reporter);
    return pos;
}

void CalcOffsets(std::int64_t& pos, XmlNode directory, ErrorReporter& reporter)
{
    reported(reporter, "Exif Offset Calculation failed", [&] {
        AttributeSet(directory, "o", std::to_string(pos));
        const std::vector<XmlNode> entries = directory.childElements("IFD");
        advance(pos, kEntrySize * static_cast<std::int64_t>(entries.size()) + kDirectoryFrameSize);
        for (const XmlNode& entry : entries) {
            if (AttributeGet(entry, "s") != "0")
                continue;
            AttributeSet(entry, "o", std::to_string(pos));
            advance(pos, sizeOutside(entry));
        }
    });
}

} // namespace ovisto
