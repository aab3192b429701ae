// SPDX-License-Identifier: MIT

#include "Photograph.h"

#include "collection/DocumentLoad.h"
#include "collection/DocumentSaving.h"
#include "common/text/Hex.h"
#include "document/Directories.h"
#include "document/NodePath.h"
#include "writer/EntryBytes.h"
#include "writer/PlainSegment.h"

#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <vector>

#include <unistd.h>

namespace ovisto::fuzz {

namespace fs = std::filesystem;

namespace {

class Silent : public ErrorReporter {
public:
    void report(const Phrase& /*context*/, const Error& /*error*/) override {}
};

/// A folder for the life of the process.
class ScratchFolder {
public:
    ScratchFolder()
    {
        m_path =
            (fs::is_directory("/dev/shm") ? fs::path("/dev/shm") : fs::temp_directory_path()) / "ovisto-fuzz-XXXXXX";
        if (mkdtemp(m_path.data()) == nullptr)
            std::abort();
    }
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;
    ~ScratchFolder()
    {
        std::error_code ignored;
        fs::remove_all(m_path, ignored);
    }

    const std::string& path() const { return m_path; }

private:
    std::string m_path;
};

const std::string& scratchFolder()
{
    static const ScratchFolder folder;
    return folder.path();
}

std::vector<std::string> namesIn(const std::string& folder)
{
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(folder))
        names.push_back(entry.path().filename());
    std::ranges::sort(names);
    return names;
}

/// What a document says, a line for each element in an order of its own. Left out are positions, and the text of the
/// node that was edited, if it may be written in more than one way.
std::vector<std::string> statements(const ConstXmlNode& node, const Edit& edit)
{
    std::vector<std::string> lines;
    for (const ConstXmlNode& child : node.childElements()) {
        const std::string name = child.name();
        const std::string path = NodeXPath(child);
        const ExifPart* part = exifPart(name);
        const bool isDirectory = part != nullptr && part->kind == PartKind::Directory;
        const std::string text = name == "Exif1" ? app1Text(child) : child.text();
        const bool isEmptyPart = part != nullptr && !isDirectory && text.empty(); // which nobody can tell from none
        if (name == "IMG" || isEmptyPart)
            continue;
        std::string line = path;
        for (char& character : line) // 926f is written as 926F
            character = static_cast<char>(std::toupper(static_cast<unsigned char>(character)));
        if (!saysPlace(child)) // which is written anew, as what it has to be
            line += " " + AttributeGet(child, name == "IFD" ? "d" : "ns");
        const bool mayDiffer = name == "IFD" && (edit.isOfAnything || path == edit.path) && mayReadDifferently(child);
        if (!isDirectory && !saysPlace(child) && !mayDiffer)
            line += " " + text;
        lines.push_back(line);
        if (isDirectory)
            std::ranges::move(statements(child, edit), std::back_inserter(lines));
    }
    std::ranges::sort(lines);
    return lines;
}

/// The segments of a file; the last one is all from the scan on.
std::vector<Bytes> segments(const Bytes& file)
{
    std::vector<Bytes> found;
    auto at = std::size_t{2};
    while (at + 4 <= file.size() && file[at + 1] != 0xDA) {
        const std::size_t end = std::min(file.size(), at + 2 + std::size_t{256} * file[at + 2] + file[at + 3]);
        found.emplace_back(file.begin() + static_cast<std::ptrdiff_t>(at),
                           file.begin() + static_cast<std::ptrdiff_t>(end));
        at = end;
    }
    found.emplace_back(file.begin() + static_cast<std::ptrdiff_t>(std::min(at, file.size())), file.end());
    return found;
}

bool isExif(const Bytes& segment)
{
    constexpr std::string_view kIdentifier("Exif\0", 5);
    return segment.size() >= 9 && segment[1] == 0xE1 &&
           std::equal(kIdentifier.begin(), kIdentifier.end(), segment.begin() + 4);
}

/// The lines that are in one of the two only.
std::string difference(const std::vector<std::string>& expected, const std::vector<std::string>& found)
{
    std::vector<std::string> missing;
    std::vector<std::string> extra;
    std::ranges::set_difference(expected, found, std::back_inserter(missing));
    std::ranges::set_difference(found, expected, std::back_inserter(extra));
    std::string text;
    for (const std::string& line : missing)
        text += "\nmissing: " + line;
    for (const std::string& line : extra)
        text += "\nbut there is: " + line;
    return text;
}

/// What is wrong with the bytes that an edit does not concern.
std::string bytesFault(const Bytes& before, const Bytes& after, const Edit& edit, WritingWay way)
{
    if (way == WritingWay::Keep && edit.changesNothing && before != after)
        return "nothing was edited, and bytes differ";
    std::vector<Bytes> old = segments(before);
    std::vector<Bytes> now = segments(after);
    if (way == WritingWay::Keep && edit.isInExif ? old.back() != now.back()
                                                 : test::imageData(before) != test::imageData(after))
        return "the image differs";
    if (way == WritingWay::Rebuild || !edit.isInExif)
        return {};
    std::erase_if(old, isExif);
    std::erase_if(now, isExif);
    return old == now ? "" : "a segment that was not edited differs";
}

} // namespace

std::string fileWith(std::span<const std::uint8_t> content, const std::string& name)
{
    std::string path = scratchFolder() + "/" + name;
    for (const std::string& other : namesIn(scratchFolder()))
        fs::remove(scratchFolder() + "/" + other);
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(content.data()), static_cast<std::streamsize>(content.size()));
    return path;
}

bool saysPlace(const ConstXmlNode& entry)
{
    const std::string id = AttributeGet(entry, "id");
    return std::ranges::any_of(kExifParts, [&](const ExifPart& part) {
        const std::uint16_t tags[] = {part.pointer.offset, part.pointer.length, part.strips.offset, part.strips.length};
        return std::ranges::any_of(tags, [&](std::uint16_t tag) { return tag != 0 && hexNumber(tag, 4) == id; });
    });
}

std::string saveFault(XmlDocument& document, const Edit& edit, const std::string& path, WritingWay way)
{
    const Bytes before = test::contentOf(path);
    const std::vector<std::string> expected = statements(document.documentElement(), edit);
    Silent reporter;
    SaveReceipt receipt;
    ErrorTrap trap;
    trap.run([&] { receipt = saveDocument(document, readFile(path).identity, path, {way}, reporter); });
    const Bytes after = test::contentOf(path);
    if (trap.pending() && before != after)
        return "a refused save changed the file";
    if (trap.pending())
        return namesIn(scratchFolder()).size() == 1 ? "" : "a refused save left a file";
    if (std::string fault = bytesFault(before, after, edit, way); !fault.empty())
        return fault;

    XmlDocument found;
    trap.run([&] { found = documentReader(readingOf(document.node()))(path); });
    if (trap.pending())
        return "the new file cannot be read: " + inEnglish(trap.error().description);
    const std::vector<std::string> said = statements(found.documentElement(), edit);
    if (receipt.losses.empty() && said != expected)
        return "the new file does not say what was saved:" + difference(expected, said);
    if (!receipt.losses.empty() && test::contentOf(path + ".original") != before)
        return "the original was not kept";
    // A save that keeps what is there has no reason to refuse it.
    trap.run([&] { saveDocument(found, readFile(path).identity, path, {}, reporter); });
    if (trap.pending())
        return "the new file cannot be saved again: " + inEnglish(trap.error().description);
    return {};
}

} // namespace ovisto::fuzz
