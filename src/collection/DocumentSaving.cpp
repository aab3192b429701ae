#include "collection/DocumentSaving.h"

#include "collection/DocumentLoad.h"
#include "common/system/FileReplacement.h"
#include "common/system/TemporaryFile.h"
#include "document/MetadataDocument.h"
#include "writer/JpegRebuilding.h"
#include "writer/NewVersion.h"

namespace ovisto {

SaveReceipt saveDocument(XmlDocument& document, const std::string& path, WritingWay way, ErrorReporter& reporter)
{
    XmlDocument before;
    reported(reporter, path, [&] { before = readDocument(path); });
    NewVersion version(reporter, path, way == WritingWay::Keep ? Leftover::Spared : Leftover::Kept);
    version.write({way, before, document, readDocument});
    version.bringToDisk();
    version.putInPlace();
    syncFolder(version.folder());
    return version.receipt();
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
