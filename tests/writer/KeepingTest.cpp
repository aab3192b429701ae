// SPDX-License-Identifier: MIT

// Saves that change what was edited and keep all else.

#include "collection/DocumentLoad.h"
#include "collection/DocumentSaving.h"
#include "common/text/Hex.h"
#include "document/DataType.h"
#include "document/Directories.h"
#include "document/NodeChange.h"
#include "document/NodeCreation.h"
#include "document/NodePath.h"
#include "document/StoredText.h"
#include "document/TagDictionary.h"
#include "document/TagNumbers.h"
#include "support/JpegBytes.h"
#include "support/RecordingReporter.h"
#include "support/Rewriting.h"
#include "writer/FileSegments.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iterator>
#include <random>
#include <set>

namespace ovisto::test {

namespace {

SaveReceipt save(const std::string& path, XmlDocument& document, ErrorReporter& reporter)
{
    return saveNow(document, path, WritingWay::Keep, reporter);
}

bool isPlaceTag(int tag)
{
    return std::ranges::any_of(kExifParts, [tag](const ExifPart& part) {
        return tag != 0 && (tag == part.pointer.offset || tag == part.pointer.length || tag == part.strips.offset ||
                            tag == part.strips.length);
    });
}

int tagOf(const ConstXmlNode& entry)
{
    return Hex4ToLong(AttributeGet(entry, "id"));
}

/// What a document says, without places and in an order of its own.
std::multiset<std::string> statements(const XmlDocument& document)
{
    std::multiset<std::string> all;
    const bool isFull = readingOf(document.node()) == Reading::Full;
    const bool isBigEndian = !isFull && static_cast<bool>(document.selectSingleNode("/JPEG/Exif[@byteSeq!='II']"));
    for (const ConstXmlNode& node : document.documentElement().descendants("IFD")) {
        const bool isWideInBigEndian = isBigEndian && isWindowsText(tagOf(node)); // read in the order of the block
        if (!isPlaceTag(tagOf(node)) && !isWideInBigEndian)
            all.insert(NodeXPath(node) + " " + AttributeGet(node, "d") + " " + node.text());
    }
    for (const char* name : {"MAKE", "THUM", "Exif1", "APP0", "APP1", "SOS"}) {
        for (const ConstXmlNode& node : document.documentElement().descendants(name))
            all.insert(NodeXPath(node) + " " + node.text());
    }
    return all;
}

/// Makes up edits, the same ones in each run.
class Editor {
public:
    explicit Editor(unsigned seed) : m_random(seed), m_dictionary(OVISTO_DATA_FOLDER "Merovel.xml") {}

    /// Makes an edit to `document`; a text that must not be found in the file any more is added to `gone`.
    void edit(XmlDocument& document, std::set<std::string>& gone)
    {
        switch (below(8)) {
        case 0:
            return removePart(document, gone);
        case 1:
            return removeEntry(document, gone);
        case 2:
        case 3:
            return addEntry(document);
        case 4:
            return changeBytes(document);
        default:
            return changeEntry(document, gone);
        }
    }

    std::size_t below(std::size_t end) { return std::uniform_int_distribution<std::size_t>(0, end - 1)(m_random); }

private:
    std::string word(std::size_t most, Reading reading)
    {
        constexpr const char* kOthers[] = {"é", "ż", "Ω", "写", "😀", "“", "\xC2\x93", "Ã©"};
        const bool isAscii = reading == Reading::Basic || below(2) == 0;
        std::string text;
        for (std::size_t i = below(most + 1); i > 0; --i) {
            if (isAscii || below(4) > 0)
                text += static_cast<char>('a' + below(26));
            else
                text += kOthers[below(std::size(kOthers))];
        }
        return text;
    }

    std::string digits(std::size_t most)
    {
        std::string text;
        for (std::size_t i = 5 + below(most); i > 0; --i)
            text += hexNumber(static_cast<std::uint32_t>(below(256)), 2);
        return text;
    }

    std::string numbers(bool isFraction)
    {
        std::string text;
        for (std::size_t i = 0, count = 1 + below(4); i < count; ++i) {
            text += (i > 0 ? "," : "") + std::to_string(below(30000));
            if (isFraction)
                text += "/" + std::to_string(1 + below(900));
        }
        return text;
    }

    std::string valueFor(const ConstXmlNode& entry, Reading reading)
    {
        const DataType* type = dataTypeIn(entry, reading);
        if (type->number == kUndefined && isFourByteTag(tagOf(entry)))
            return hexNumber(static_cast<std::uint32_t>(below(0xFFFFFF)), 8);
        switch (type->form) {
        case ValueForm::Hexadecimal:
            return digits(20) + "01"; // no text, which it would be shown as
        case ValueForm::Short:
        case ValueForm::Long:
            return numbers(false);
        case ValueForm::Rational:
            return numbers(true);
        case ValueForm::Real:
            return "-0.1";
        default:
            return word(40, reading);
        }
    }

    /// Of an entry of a document or the dictionary.
    static const DataType* dataTypeIn(const ConstXmlNode& entry, Reading reading)
    {
        const int number = dataTypeOf(entry);
        return reading == Reading::Full ? findFullDataType(number, tagOf(entry)) : findDataType(number);
    }

    static bool canChange(const ConstXmlNode& entry, Reading reading)
    {
        const int tag = tagOf(entry);
        const DataType* type = dataTypeIn(entry, reading);
        const bool isPlace = tag == 0x8825 || tag == 0x014A || isPlaceTag(tag);
        return !isPlace && type != nullptr && (type->form != ValueForm::WideText || isWindowsText(tag));
    }

    std::vector<XmlNode> changeable(XmlDocument& document)
    {
        std::vector<XmlNode> entries = document.node().descendants("IFD");
        std::erase_if(entries, [](const XmlNode& entry) { return !canChange(entry, readingOf(entry)); });
        return entries;
    }

    static void note(std::set<std::string>& gone, const ConstXmlNode& entry)
    {
        constexpr std::size_t kTelling = 8;
        if (dataTypeOf(entry) == kString && entry.text().size() >= kTelling)
            gone.insert(entry.text());
    }

    void changeEntry(XmlDocument& document, std::set<std::string>& gone)
    {
        std::vector<XmlNode> entries = changeable(document);
        if (entries.empty())
            return;
        XmlNode& entry = entries[below(entries.size())];
        note(gone, entry);
        entry.setText(valueFor(entry, readingOf(entry)));
    }

    void removeEntry(XmlDocument& document, std::set<std::string>& gone)
    {
        std::vector<XmlNode> entries = changeable(document);
        if (entries.empty())
            return;
        XmlNode& entry = entries[below(entries.size())];
        note(gone, entry);
        entry.remove();
    }

    void removePart(XmlDocument& document, std::set<std::string>& gone)
    {
        constexpr std::string_view kNames[] = {kMakerNoteBytes, kThumbnailIfd, kInteroperabilityIfd, kGpsIfd, kExifIfd};
        const ExifPart& part = *exifPart(kNames[std::min(below(7), below(5))]);
        XmlNode node = document.selectSingleNode(partPath(part));
        if (!node)
            return;
        for (const XmlNode& entry : node.childElements("IFD"))
            note(gone, entry);
        RecordingReporter reporter;
        applyChange(document, {.action = NodeAction::Delete, .node = node}, reporter);
        // The interoperability directory is reached through the Exif directory.
        if (part.element == kExifIfd)
            document.selectSingleNode(partPath(*exifPart(kInteroperabilityIfd))).remove();
    }

    void addEntry(XmlDocument& document)
    {
        const Reading reading = readingOf(document.node());
        const std::vector<DictionaryEntry> entries = m_dictionary.entries(true, reading);
        for (;;) {
            const DictionaryEntry& entry = entries[below(entries.size())];
            const bool isEntry = entry.node().name() == "IFD" && canChange(entry.node(), reading);
            if (!isEntry)
                continue;
            if (document.selectSingleNode(entry.path()))
                return;
            RecordingReporter reporter;
            CreateNode(document, entry, reporter).setText(valueFor(entry.node(), reading));
            return;
        }
    }

    void changeBytes(XmlDocument& document)
    {
        const ExifPart& part = *exifPart(below(2) == 0 ? kMakerNoteBytes : kThumbnailBytes);
        XmlNode node = document.selectSingleNode(partPath(part));
        const bool isInStrips = static_cast<bool>(document.selectSingleNode("/JPEG/Exif/IFD1/IFD[@id='0111']"));
        if (!node || (part.element == kThumbnailBytes && isInStrips))
            return;
        node.setText(digits(300));
    }

    std::mt19937 m_random;
    TagDictionary m_dictionary;
};

std::size_t occurrences(const Bytes& bytes, const std::string& text)
{
    std::size_t count = 0;
    for (auto place = bytes.begin();; ++place, ++count) {
        place = std::search(place, bytes.end(), text.begin(), text.end());
        if (place == bytes.end())
            return count;
    }
}

Bytes exifBytes(const std::string& path)
{
    const InputFile file(path);
    Bytes all;
    for (const Segment& segment : segmentsOf(file)) {
        if (segment.marker == 0xFFE1) {
            const Bytes bytes = segmentBytes(file, segment);
            all.insert(all.end(), bytes.begin(), bytes.end());
        }
    }
    return all;
}

std::vector<std::string> photographs()
{
    std::vector<std::string> found;
    const char* samples = std::getenv("OVISTO_SAMPLES");
    for (const std::string& folder :
         {std::string(OVISTO_OWN_SAMPLES), std::string(samples != nullptr ? samples : OVISTO_DEFAULT_SAMPLES)}) {
        if (!std::filesystem::is_directory(folder))
            continue;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
            if (entry.path().extension() == ".jpg")
                found.push_back(entry.path().string());
        }
    }
    std::ranges::sort(found);
    return found;
}

/// What went wrong in a save, for a person to look into.
struct Trial {
    std::string original;
    unsigned seed;
    int round;
    Reading reading;

    std::string name() const
    {
        return original + ", seed " + std::to_string(seed) + ", round " + std::to_string(round) +
               (reading == Reading::Full ? ", full" : ", basic");
    }
};

void editAndSave(Editor& editor, const std::string& path, const Trial& trial)
{
    SCOPED_TRACE(trial.name());
    XmlDocument document = loadDocument(path, {.reading = trial.reading});
    std::set<std::string> gone;
    for (std::size_t i = 1 + editor.below(3); i > 0; --i)
        editor.edit(document, gone);
    const Bytes exifBefore = exifBytes(path);
    RecordingReporter reporter;
    SaveReceipt receipt;
    ErrorTrap trap;
    trap.run([&] { receipt = save(path, document, reporter); });
    ASSERT_FALSE(trap.pending()) << inEnglish(trap.error().description);

    const std::multiset<std::string> expected = statements(document);
    std::vector<std::string> differing;
    std::ranges::set_symmetric_difference(statements(loadDocument(path, {.reading = trial.reading})), expected,
                                          std::back_inserter(differing));
    EXPECT_EQ(differing, std::vector<std::string>());
    const Bytes exif = exifBytes(path);
    for (const std::string& text : gone) {
        const bool isStillSaid = std::ranges::any_of(
            expected, [&](const std::string& statement) { return statement.find(text) != std::string::npos; });
        const std::size_t before = occurrences(exifBefore, text);
        EXPECT_TRUE(isStillSaid || before == 0 || occurrences(exif, text) < before || !receipt.notes.empty()) << text;
    }
}

} // namespace

TEST(Keeping, ChangesWhatWasEditedAndNothingElse)
{
    constexpr unsigned kSeeds = 3; // some 1,300 edits
    constexpr int kRounds = 6;
    const TemporaryFolder folder;
    std::vector<std::string> files = photographs();
    files.push_back(folder.file("little.jpg", fullPhotograph(true)));
    files.push_back(folder.file("big.jpg", fullPhotograph(false)));
    for (unsigned seed = 1; seed <= kSeeds; ++seed) {
        Editor editor(seed);
        for (const std::string& original : files) {
            const std::string path = folder.file("edited.jpg", contentOf(original));
            for (int round = 0; round < kRounds; ++round) {
                const Reading reading = (seed + static_cast<unsigned>(round)) % 2 == 0 ? Reading::Basic : Reading::Full;
                editAndSave(editor, path, {original, seed, round, reading});
            }
        }
    }
}

namespace {

/// Whether an entry may read as in `full`, where the basic document has `basic`.
bool maySay(const ConstXmlNode& basic, const ConstXmlNode& full)
{
    const std::string before = basic.text();
    const std::string after = full.text();
    const int tag = tagOf(full);
    const int dataType = dataTypeOf(full);
    const bool isAscii = std::ranges::all_of(after, [](char byte) { return (byte & 0x80) == 0; });
    const bool hasOneMore = after.starts_with(before) && after.size() <= before.size() + 2;
    switch (dataType) {
    case kByte:
    case kSignedByte:
        return hasOneMore || dataTypeOf(basic) == kUndefined; // a text that was cut at a zero byte
    case kString:
        return hasOneMore || !isAscii;
    case kUndefined:
        return hasOneMore || !isAscii || isFourByteTag(tag) || hasCharacterCode(tag);
    case kUnicodeString:
        return true;
    default: // many digits, a sign, a real number
        return before.find('E') != std::string::npos || after.find('-') != std::string::npos ||
               dataType > kUnicodeString;
    }
}

} // namespace

TEST(Keeping, BothReadingsDifferOnlyInWhatBasicOnesCannotSay)
{
    const TemporaryFolder folder;
    std::vector<std::string> files = photographs();
    files.push_back(folder.file("little.jpg", fullPhotograph(true)));
    files.push_back(folder.file("big.jpg", fullPhotograph(false)));
    for (const std::string& path : files) {
        SCOPED_TRACE(path);
        const XmlDocument basic = loadDocument(path);
        XmlDocument full = loadDocument(path, {.reading = Reading::Full});
        full.selectSingleNode("/JPEG/Exif/IFDG").remove();
        const std::vector<ConstXmlNode> nodes = basic.documentElement().descendants("IFD");
        const XmlDocument& fullDocument = full;
        const std::vector<ConstXmlNode> others = fullDocument.documentElement().descendants("IFD");
        ASSERT_EQ(nodes.size(), others.size());
        for (std::size_t i = 0; i < nodes.size(); ++i) {
            ASSERT_EQ(NodeXPath(nodes[i]), NodeXPath(others[i]));
            EXPECT_TRUE(nodes[i].text() == others[i].text() || maySay(nodes[i], others[i]))
                << NodeXPath(nodes[i]) << ": " << nodes[i].text() << " / " << others[i].text();
        }
        for (const char* name : {"MAKE", "THUM", "APP0", "APP1", "SOS", "IMG"}) {
            const auto texts = [name](const XmlDocument& document) {
                std::vector<std::string> all;
                for (const ConstXmlNode& node : document.documentElement().descendants(name))
                    all.push_back(node.text());
                return all;
            };
            EXPECT_EQ(texts(basic), texts(fullDocument)) << name;
        }
    }
}

TEST(Keeping, LeavesAFileThatWasNotEditedAsItIs)
{
    const TemporaryFolder folder;
    for (const std::string& original : photographs()) {
        const Bytes before = contentOf(original);
        const std::string path = folder.file("a.jpg", before);
        for (const Reading reading : {Reading::Basic, Reading::Full}) {
            XmlDocument document = loadDocument(path, {.reading = reading});
            RecordingReporter reporter;
            EXPECT_EQ(save(path, document, reporter).changed, 0U) << original;
            EXPECT_EQ(contentOf(path), before) << original;
        }
    }
}

TEST(Keeping, KeepsTheOriginalOnceWhereRebuildingLosesSomething)
{
    const TemporaryFolder folder;
    const Bytes before = fullPhotograph(false);
    const std::string path = folder.file("a.jpg", before);
    RecordingReporter reporter;
    const auto rebuild = [&] {
        XmlDocument document = loadDocument(path);
        return saveNow(document, path, WritingWay::Rebuild, reporter);
    };
    const SaveReceipt receipt = rebuild();
    EXPECT_FALSE(receipt.losses.empty());
    EXPECT_EQ(receipt.original, Original::Kept);
    EXPECT_EQ(contentOf(folder.path("a.jpg.original")), before);
    folder.file("a.jpg", fullPhotograph(true));
    EXPECT_EQ(rebuild().original, Original::WasThere);
    EXPECT_EQ(contentOf(folder.path("a.jpg.original")), before) << "the older state stays";
    EXPECT_EQ(folder.names(), (std::vector<std::string>{"a.jpg", "a.jpg.original"}));
    EXPECT_EQ(tryRebuilding(folder.file("b.jpg", before), reporter).losses, receipt.losses);
    EXPECT_EQ(contentOf(folder.path("b.jpg")), before);

    std::filesystem::create_directory(folder.path("b.jpg.original"));
    XmlDocument document = loadDocument(folder.path("b.jpg"));
    EXPECT_EQ(errorNumberOf([&] { saveNow(document, folder.path("b.jpg"), WritingWay::Rebuild, reporter); }),
              kPathAccessError);
    EXPECT_EQ(contentOf(folder.path("b.jpg")), before) << "nothing is saved where the original cannot be kept";
}

} // namespace ovisto::test
