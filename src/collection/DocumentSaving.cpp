#include "collection/DocumentSaving.h"

#include "collection/DocumentLoad.h"
#include "common/KeptReports.h"
#include "common/system/FileReplacement.h"
#include "common/system/TemporaryFile.h"
#include "document/MetadataDocument.h"
#include "document/NodePath.h"
#include "writer/JpegRebuilding.h"
#include "writer/NewVersion.h"

namespace ovisto {

namespace {

/// The elements that a picture is decoded with (frames, tables, restart interval, scan header), as text.
std::vector<std::string> pictureTables(const XmlDocument& document)
{
    std::vector<std::string> tables;
    for (const ConstXmlNode& node : document.documentElement().childElements()) {
        const std::string id = AttributeGet(node, "id");
        if ((node.name() == "APP1" && id < "FFE0") || node.name() == "SOS")
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

SaveReceipt save(const XmlDocument& before, XmlDocument& after, const FileIdentity& asRead, const std::string& path,
                 WritingWay way, ErrorReporter& reporter)
{
    NewVersion version(reporter, path, way == WritingWay::Keep ? Leftover::Spared : Leftover::Kept, asRead);
    version.write({way, before, after, readDocument});
    version.bringToDisk();
    version.putInPlace();
    syncFolder(version.folder());
    return version.receipt();
}

} // namespace

SaveReceipt saveDocument(XmlDocument& document, const FileIdentity& asRead, const std::string& path, WritingWay way,
                         ErrorReporter& reporter)
{
    XmlDocument before;
    reported(reporter, path, [&] {
        const InputFile file = openJpeg(path);
        if (!isSameFile(asRead, file))
            throw fileWasChanged();
        before = documentOf(documentText(file, path));
    });
    return save(before, document, asRead, path, way, reporter);
}

SaveReceipt saveOver(XmlDocument& document, const std::string& path, WritingWay way, ErrorReporter& reporter)
{
    return savedAtLast(reporter, [&](ErrorReporter& reports) {
        FileReading reading;
        XmlDocument before;
        reported(reports, path, [&] {
            reading = readFile(path);
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
    const TemporaryFile rebuilt;
    const InputFile oldFile(path);
    OutputFile newFile(rebuilt.path());
    rebuildJpeg(document, oldFile, newFile, rebuilt.path(), reporter);
    newFile.flush();
    return compareVersions(oldFile, InputFile(rebuilt.path()), rebuilt.path(), before, document, readDocument);
}

} // namespace ovisto
