// SPDX-License-Identifier: MIT

#include "Photograph.h"
#include "Targets.h"

#include "cli/Options.h"
#include "collection/ContentFilter.h"
#include "collection/DocumentLoad.h"
#include "collection/FilePattern.h"
#include "collection/KeywordFile.h"
#include "common/FirstReport.h"
#include "common/text/Hex.h"
#include "common/xml/XmlLoad.h"
#include "common/xml/XmlTransform.h"
#include "document/Directories.h"
#include "document/MetadataDocument.h"
#include "document/NodeChange.h"
#include "document/NodePath.h"
#include "document/PropertyTree.h"
#include "support/Dictionary.h"

#include <algorithm>
#include <string_view>
#include <vector>

namespace ovisto::fuzz {

namespace {

constexpr auto* kName = "text";

const Bytes& photograph()
{
    static const Bytes bytes = test::fullPhotograph(true);
    return bytes;
}

const std::string& photographsText()
{
    static const std::string text = documentText(fileWith(photograph(), "a.jpg"));
    return text;
}

std::string readDictionary(std::span<const std::uint8_t> input)
{
    constexpr std::size_t kMostCreated = 20;
    XmlDocument document = documentOf(photographsText());
    const TagDictionary dictionary(fileWith(input, kName));
    propertyTree(document, dictionary, true);
    const std::vector<DictionaryEntry> entries = dictionary.entries(true, Reading::Full);
    for (std::size_t i = 0; i < std::min(entries.size(), kMostCreated); ++i) {
        const NodeChange change{i % 2 == 0 ? NodeAction::Set : NodeAction::Delete, entries[i], "1"};
        FirstReport report;
        ErrorTrap trap;
        if (objection(change, Reading::Basic).isEmpty())
            trap.run([&] { applyChange(document, change, report); });
    }
    return {};
}

std::string transform(std::span<const std::uint8_t> input)
{
    XmlDocument data;
    data.loadText("<JPEGs>" + photographsText() + "</JPEGs>");
    XmlDocument style;
    loadStyleSheet(style, fileWith(input, kName), FileKind::Regular);
    transformNode(data, std::move(style), TextEncoding::Utf8);
    return {};
}

/// What the command line refuses: a document with other tables, scan header or place of the image.
bool isOfPhotograph(const XmlDocument& document)
{
    const auto imageParts = [](const XmlDocument& of) {
        std::string parts;
        for (const ConstXmlNode& node : of.documentElement().childElements()) {
            const std::string id = AttributeGet(node, "id");
            if (node.name() == "SOS" || node.name() == "IMG" || (node.name() == "APP1" && id < "FFE0"))
                parts += node.name() + id + AttributeGet(node, "offset") + " " + AttributeGet(node, "length") + "\n";
        }
        return parts;
    };
    return imageParts(document) == imageParts(documentOf(photographsText()));
}

/// Whether each part of each Exif element is there together with the entry that leads to it. One without the other
/// counts as deleted. An Exif element is written as what it is, whatever its id.
bool isWhole(const XmlDocument& document)
{
    const auto has = [](const ConstXmlNode& exif, const ExifPart& part, std::uint16_t tag) {
        const std::vector<ConstXmlNode> entries = partNode(exif, *exifPart(part.pointedFrom)).childElements("IFD");
        return std::ranges::any_of(
            entries, [&](const ConstXmlNode& entry) { return AttributeGet(entry, "id") == hexNumber(tag, 4); });
    };
    const std::vector<ConstXmlNode> exifs = document.documentElement().childElements(kFirstDirectory);
    return std::ranges::all_of(exifs, [&](const ConstXmlNode& exif) {
        return AttributeGet(exif, "id") == "FFE1" && std::ranges::all_of(kExifParts, [&](const ExifPart& part) {
                   const bool isThere = static_cast<bool>(partNode(exif, part));
                   return part.pointer.offset == 0 ||
                          (has(exif, part, part.pointer.offset) == isThere &&
                           (part.pointer.length == 0 || has(exif, part, part.pointer.length) == isThere));
               });
    });
}

std::string saveEdited(std::span<const std::uint8_t> input)
{
    for (const WritingWay way : {WritingWay::Keep, WritingWay::Rebuild}) {
        XmlDocument document;
        if (document.loadFile(fileWith(input, kName), Validation::Off, WhiteSpace::Preserve) ||
            document.documentElement().name() != "JPEG" || !isOfPhotograph(document) || !isWhole(document))
            return {};
        Edit edit;
        edit.isInExif = false; // or anywhere
        edit.isOfAnything = true;
        std::string fault = saveFault(document, edit, fileWith(photograph(), "a.jpg"), way);
        if (!fault.empty())
            return fault;
    }
    return {};
}

std::string readKeywords(std::span<const std::uint8_t> input)
{
    std::vector<std::string> keywords;
    FirstReport report;
    loadKeywords(fileWith(input, kName), keywords, report);
    for (const std::string& keyword : keywords)
        keywordInsertion(keyword, keywords.size(), 0, 1);
    return {};
}

std::string readFileList(std::span<const std::uint8_t> input)
{
    FileOptions options;
    options.filesFrom = fileWith(input, kName);
    for (const bool zeroSeparated : {false, true}) {
        options.zeroSeparated = zeroSeparated;
        const std::vector<std::string> names = fileNames(options);
        const char separator = zeroSeparated ? '\0' : '\n';
        if (std::ranges::any_of(names, [&](const auto& name) { return name.find(separator) != std::string::npos; }))
            return "a name contains the separator";
    }
    return {};
}

/// What the settings, or a person, can ask of a search. A byte of choices, then names, then words.
std::string search(std::span<const std::uint8_t> input)
{
    if (input.empty())
        return {};
    const std::string text(input.begin() + 1, input.end());
    const std::string pattern = text.substr(0, text.find('\n'));
    const std::string words = text.substr(std::min(text.size(), pattern.size() + 1));
    FilePattern(pattern).matches(words);
    const bool isChosen[] = {(input[0] & 1) != 0, (input[0] & 2) != 0, (input[0] & 4) != 0};
    const ContentFilter filter({words, isChosen[0], isChosen[1], isChosen[2]});
    filter.keeps(fileWith(photograph(), "a.jpg"));
    return {};
}

constexpr std::string (*kReaders[])(std::span<const std::uint8_t>) = {readDictionary, transform,    saveEdited,
                                                                      readKeywords,   readFileList, search};

} // namespace

std::string readText(std::span<const std::uint8_t> input)
{
    if (input.empty())
        return {};
    std::string fault;
    ErrorTrap trap; // what is wrong with a text is an error, as it should be
    trap.run([&] { fault = kReaders[input.front() % std::size(kReaders)](input.subspan(1)); });
    return fault;
}

} // namespace ovisto::fuzz
