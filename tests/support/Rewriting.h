// SPDX-License-Identifier: MIT

#pragma once

#include "collection/DocumentLoad.h"
#include "collection/DocumentSaving.h"
#include "writer/JpegDocument.h"

#include <string>

namespace ovisto::test {

/// Writes the file at `path` anew from its own document.
inline void rewrite(const std::string& path, ErrorReporter& reporter)
{
    XmlDocument document = loadDocument(path);
    JpegDocument(reporter, documentReader(Reading::Basic)).WriteJpeg(document, path);
}

/// Saves `document` to the file at `path` as if it had just been read from it.
inline SaveReceipt saveNow(XmlDocument& document, const std::string& path, WritingWay way, ErrorReporter& reporter)
{
    return saveDocument(document, readFile(path).identity, path, {way}, reporter);
}

} // namespace ovisto::test
