// SPDX-License-Identifier: MIT

#pragma once

#include "common/xml/XmlDocument.h"
#include "jpeg/FileIdentity.h"
#include "reader/JpegXml.h"
#include "writer/SaveReceipt.h"

#include <string>

namespace ovisto {

// Paths are bytes as the system gives them. The reader's errors are those of JpegXml: kOpenFailed, kStructureError,
// kDeviceError and kOutOfMemory.

/// The document of the JPEG file at `path`, to be looked at. Raises the reader's error, and what documentOf() raises.
XmlDocument loadDocument(const std::string& path, const KeepOptions& keep = {});

/// Loads documents with nothing left out, as writing asks for it.
DocumentReader documentReader(Reading reading);

/// A JPEG file as it was read: documentOf() its text can be changed, and saved by saveDocument().
struct FileReading {
    std::string text; ///< of its document (UTF-8), nothing left out
    FileIdentity identity;
};

/// Reads the file at `path`. Raises the reader's error.
FileReading readFile(const std::string& path, Reading reading = Reading::Basic);

/// The text of the document. Raises the reader's error.
std::string documentText(const std::string& path, const KeepOptions& keep = {});

/// The same for a file that is open.
std::string documentText(const InputFile& file, const std::string& path, const KeepOptions& keep = {});

} // namespace ovisto
