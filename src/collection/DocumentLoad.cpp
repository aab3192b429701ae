// SPDX-License-Identifier: MIT

#include "collection/DocumentLoad.h"

#include "document/MetadataDocument.h"

namespace ovisto {

namespace {

std::string textOf(Translation translation)
{
    if (translation.error)
        throw Error(*translation.error);
    return std::move(translation.text);
}

} // namespace

XmlDocument loadDocument(const std::string& path, const KeepOptions& keep)
{
    return documentOf(documentText(path, keep));
}

DocumentReader documentReader(Reading reading)
{
    return [reading](const std::string& path) { return loadDocument(path, {.reading = reading}); };
}

std::string documentText(const std::string& path, const KeepOptions& keep)
{
    return textOf(JpegXml().XMLtranslate(path, keep));
}

std::string documentText(const InputFile& file, const std::string& path, const KeepOptions& keep)
{
    return textOf(JpegXml().XMLtranslate(file, path, keep));
}

FileReading readFile(const std::string& path, Reading reading)
{
    const InputFile file = openJpeg(path);
    const FileIdentity identity = identityOf(file);
    return {documentText(file, path, {.reading = reading}), identity};
}

} // namespace ovisto
