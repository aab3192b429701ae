// SPDX-License-Identifier: MIT

#include "Photograph.h"
#include "Targets.h"

#include "collection/DocumentLoad.h"
#include "common/FirstReport.h"
#include "document/MetadataDocument.h"
#include "document/NodeChange.h"
#include "document/NodePath.h"
#include "document/PropertyTree.h"
#include "support/Dictionary.h"

#include <utf8.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

namespace ovisto::fuzz {

namespace {

constexpr std::size_t kEditSize = 4; // bytes after a photograph that say what is edited
constexpr int kFull = 128;           // the first of them, if everything is read

constexpr std::string_view kTexts[] = {"",
                                       "A",
                                       "A longer text than the one before it, most likely; with <, & and \"",
                                       "H\xC3\xA9llo",
                                       "\xE5\xB1\xB1 and \xF0\x9F\x93\xB7",
                                       "0",
                                       "1",
                                       "65535",
                                       "4294967295",
                                       "-1",
                                       "1/3",
                                       "1/3,2/3,-1/5",
                                       "1,2,3,4,5,6,7",
                                       "00",
                                       "DEADBEEF00",
                                       "1e3",
                                       "\x01\x02",
                                       "]]>"};

/// Edits a document as `bytes` say: one entry or one node of the dictionary.
Edit edited(XmlDocument& document, std::span<const std::uint8_t> bytes)
{
    enum Kind { Nothing, RemoveEntry, SetEntry, Set, Delete, Add, kKinds };
    const int kind = bytes[0] % kFull % kKinds;
    const std::size_t index = std::size_t{256} * bytes[1] + bytes[2];
    const std::string text(kTexts[bytes[3] % std::size(kTexts)]);
    if (kind == Nothing)
        return {.changesNothing = true};
    if (kind == RemoveEntry || kind == SetEntry) {
        std::vector<XmlNode> entries = document.node().descendants("IFD");
        std::erase_if(entries, saysPlace); // they go with what stands there
        if (entries.empty())
            return {.isSavable = false};
        XmlNode& entry = entries[index % entries.size()];
        if (kind == RemoveEntry)
            entry.remove();
        else
            entry.setText(text);
        return {.path = kind == SetEntry ? NodeXPath(entry) : ""};
    }
    static const std::vector<DictionaryEntry> entries = test::dictionary().entries(true, Reading::Full);
    const DictionaryEntry& entry = entries[index % entries.size()];
    constexpr std::array kActions{NodeAction::Set, NodeAction::Delete, NodeAction::Add};
    const NodeChange change{kActions.at(static_cast<std::size_t>(kind - Set)), entry, text};
    Edit edit{.isInExif = entry.path().starts_with("/JPEG/Exif["), .path = entry.path()};
    FirstReport report;
    ErrorTrap trap;
    if (objection(change, readingOf(document.node())).isEmpty())
        trap.run([&] { edit.isSavable = static_cast<bool>(applyChange(document, change, report)); });
    else
        edit.isSavable = false;
    edit.isSavable = edit.isSavable && !trap.pending();
    return edit;
}

std::string editAndSave(std::span<const std::uint8_t> input, WritingWay way)
{
    if (input.size() < kEditSize)
        return {};
    const std::string path = fileWith(input.first(input.size() - kEditSize), "a.jpg");
    const std::span<const std::uint8_t> edits = input.last(kEditSize);
    const bool isFull = way == WritingWay::Keep && edits[0] >= kFull;
    XmlDocument document;
    ErrorTrap trap;
    trap.run([&] { document = documentReader(isFull ? Reading::Full : Reading::Basic)(path); });
    if (trap.pending())
        return {};
    const Edit edit = edited(document, edits);
    return edit.isSavable ? saveFault(document, edit, path, way) : "";
}

} // namespace

std::string read(std::span<const std::uint8_t> input)
{
    const std::string path = fileWith(input, "a.jpg");
    const KeepOptions all;
    const KeepOptions parts[] = {all, {false, true, false}, {true, false, true}, {true, true, true, Reading::Full}};
    for (const KeepOptions& keep : parts) {
        const std::string text = JpegXml().XMLtranslate(path, keep).text;
        if (!text.empty() && !(text.starts_with("<JPEG ") && text.ends_with("</JPEG>")))
            return "the document has no end";
        if (!utf8::is_valid(text))
            return "the document is not UTF-8";
        ErrorTrap trap; // a text with control characters is no XML, whatever it is part of
        trap.run([&] {
            const XmlDocument document = documentOf(text);
            propertyTree(document, test::dictionary(), true);
        });
    }
    return {};
}

std::string rebuild(std::span<const std::uint8_t> input)
{
    return editAndSave(input, WritingWay::Rebuild);
}

std::string keep(std::span<const std::uint8_t> input)
{
    return editAndSave(input, WritingWay::Keep);
}

} // namespace ovisto::fuzz
