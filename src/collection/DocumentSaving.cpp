// SPDX-License-Identifier: MIT

#include "collection/DocumentSaving.h"

#include "collection/DocumentLoad.h"
#include "common/KeptReports.h"
#include "common/system/FileNames.h"
#include "common/system/FileReplacement.h"
#include "common/system/TemporaryFile.h"
#include "document/Directories.h"
#include "document/MetadataDocument.h"
#include "document/NodePath.h"
#include "writer/JpegRebuilding.h"
#include "writer/NewVersion.h"

#include <memory>
#include <set>
#include <utility>

namespace ovisto {

namespace {

/// The elements that a picture is decoded with (frames, tables, restart interval, scan header), as text. Those with
/// nothing in them do not count: they may be deleted.
std::vector<std::string> pictureTables(const XmlDocument& document)
{
    std::vector<std::string> tables;
    for (const ConstXmlNode& node : document.documentElement().childElements()) {
        const std::string id = AttributeGet(node, "id");
        if (((node.name() == "APP1" && id < "FFE0") || node.name() == "SOS") && !node.text().empty())
            tables.push_back(id + " " + node.text());
    }
    return tables;
}

/// Has `document` lead to the picture of the file whose document is `present`.
void adoptPicture(XmlDocument& document, const XmlDocument& present)
{
    if (pictureTables(document) != pictureTables(present))
        throw Error{kInvalidCall, Message::OtherPicture};
    const ConstXmlNode place = present.documentElement().childElement("IMG");
    for (const char* attribute : {"offset", "length"})
        AttributeSet(document.documentElement().childElement("IMG"), attribute, AttributeGet(place, attribute));
}

/// Raises an error for an entry that would be written as another one than its id says.
void checkTags(const XmlDocument& document)
{
    constexpr std::size_t kDigits = 4;
    for (const ConstXmlNode& entry : document.node().descendants("IFD")) {
        const std::string id = AttributeGet(entry, "id");
        const bool isTag = id.size() == kDigits && id.find_first_not_of("0123456789ABCDEFabcdef") == std::string::npos;
        if (!isTag)
            throw Error{kInvalidCall, {Message::TagNotHexadecimal, id}, NodeXPath(entry)};
    }
}

/// Raises an error for a node that stands in a directory where nothing would be written for it.
void checkPlaces(const XmlDocument& document)
{
    for (const ExifPart& part : kExifParts) {
        if (part.kind != PartKind::Directory)
            continue;
        for (const ConstXmlNode& directory : document.node().descendants(part.element)) {
            for (const ConstXmlNode& node : directory.childElements()) {
                const ExifPart* own = exifPart(node.name());
                if (node.name() != "IFD" && (own == nullptr || own->parent != part.element))
                    throw Error{
                        kInvalidCall, {Message::UnknownTag, node.name(), NodeXPath(directory)}, NodeXPath(node)};
            }
        }
    }
}

/// Raises an error if the picture would be decoded in another way than before.
void checkPictureTables(const XmlDocument& before, const XmlDocument& after)
{
    if (pictureTables(after) != pictureTables(before))
        throw Error{kInvalidCall, Message::OtherPictureTables};
}

SaveReceipt save(const XmlDocument& before, XmlDocument& after, const FileIdentity& asRead, const std::string& path,
                 const SavingWay& way, ErrorReporter& reporter)
{
    reported(reporter, path, [&] {
        checkTags(after);
        checkPlaces(after);
        if (way.writing == WritingWay::Keep)
            checkPictureTables(before, after);
    });
    NewVersion version(reporter, path, {ReadOnlyFails::AtTheEnd, way.isSpared, asRead});
    version.write({way.writing, before, after, documentReader(readingOf(after.node())), way.clearance});
    version.bringToDisk();
    version.putInPlace();
    SaveReceipt receipt = version.receipt();
    ErrorTrap trap;
    trap.run([&] { reported(reporter, path, [&] { syncFolder(version.folder()); }); });
    if (trap.pending())
        receipt.notOnDisk = trap.take();
    return receipt;
}

} // namespace

SparedFile sparing(const std::vector<std::string>& files)
{
    std::set<std::string> spared;
    for (const std::string& file : files) {
        if (file[folderOf(file).size()] == '~')
            spared.insert(realPath(file));
    }
    if (spared.empty())
        return {};
    return [spared = std::make_shared<const std::set<std::string>>(std::move(spared))](const std::string& path) {
        return spared->contains(realPath(path));
    };
}

SaveReceipt saveDocument(XmlDocument& document, const FileIdentity& asRead, const std::string& path,
                         const SavingWay& way, ErrorReporter& reporter)
{
    XmlDocument before;
    reported(reporter, path, [&] {
        const InputFile file = openJpeg(path);
        if (!isSameFile(asRead, file))
            throw fileWasChanged();
        before = documentOf(documentText(file, path, {.reading = readingOf(document.node())}));
    });
    return save(before, document, asRead, path, way, reporter);
}

SaveReceipt saveOver(XmlDocument& document, const std::string& path, const SavingWay& way, ErrorReporter& reporter)
{
    return savedAtLast(reporter, [&](ErrorReporter& reports) {
        FileReading reading;
        XmlDocument before;
        reported(reports, path, [&] {
            reading = readFile(path, readingOf(document.node()));
            before = documentOf(reading.text);
            adoptPicture(document, before);
        });
        return save(before, document, reading.identity, path, way, reports);
    });
}

SaveReceipt savedAtLast(ErrorReporter& reporter, const std::function<SaveReceipt(ErrorReporter&)>& save)
{
    for (int tries = 1;; ++tries) {
        SaveReceipt receipt;
        KeptReports reports;
        ErrorTrap trap;
        trap.run([&] { receipt = save(reports); });
        if (trap.pending() && isFileWasChanged(trap.error()) && tries < kMostTries)
            continue;
        reports.passTo(reporter);
        trap.raise();
        return receipt;
    }
}

SaveReceipt tryRebuilding(const std::string& path, ErrorReporter& reporter)
{
    const std::string text = documentText(path);
    const XmlDocument before = documentOf(text);
    XmlDocument document = documentOf(text);
    TemporaryFile rebuilt;
    const InputFile oldFile(path);
    rebuildJpeg(document, oldFile, rebuilt.file(), rebuilt.path(), reporter);
    rebuilt.file().flush();
    return compareVersions(oldFile, InputFile(rebuilt.path()), rebuilt.path(), before, document,
                           documentReader(Reading::Basic));
}

} // namespace ovisto
