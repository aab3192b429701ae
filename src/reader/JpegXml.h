// SPDX-License-Identifier: MIT

#pragma once

#include "common/Error.h"
#include "common/system/File.h"
#include "reader/KeepOptions.h"

#include <optional>
#include <string>

namespace ovisto {

/// The result of translating a JPEG file.
struct Translation {
    /// The document (root element JPEG) in UTF-8, without an XML declaration. After an error, what was read before it,
    /// well-formed, or nothing.
    std::string text;
    /// Whether an option left out something that the file holds: saving the document would change the file.
    bool ChangesMade = false;
    std::optional<Error> error;
};

/// Reads a JPEG file and returns its metadata as an XML document. Several threads may use one at once. docs/format.md
/// describes the document.
class JpegXml {
public:
    /// Translates the file at `FileName` (bytes, as the system gives them). The error is kOpenFailed if
    /// it cannot be opened and kStructureError if it is not a sound JPEG file; its description is the message followed
    /// by the file name. It is kDeviceError if the disk fails, and kOutOfMemory if the directories repeat the same
    /// bytes until textLimit() is reached. After any other fault of a file, only what could not be read is missing from
    /// the text.
    Translation XMLtranslate(const std::string& FileName, const KeepOptions& keep = {}) const;

    /// The same for a file that is open. `FileName` is what it was opened by.
    Translation XMLtranslate(const InputFile& file, const std::string& FileName, const KeepOptions& keep = {}) const;
};

/// Opens the file at `FileName` for XMLtranslate(). Raises kOpenFailed.
InputFile openJpeg(const std::string& FileName);

} // namespace ovisto
