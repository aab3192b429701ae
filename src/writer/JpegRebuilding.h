// SPDX-License-Identifier: MIT

#pragma once

#include "common/ErrorReport.h"
#include "common/system/File.h"
#include "common/xml/XmlDocument.h"

#include <string>

namespace ovisto {

/// Writes a whole JPEG file to `newFile`: the segments from `document`, the Exif segment laid out anew, the image data
/// from `oldFile`. The IMG element of `document` must describe the image data of `oldFile` as it is now: a file that
/// changed after the document was read is refused. So is a segment whose length would be wrong, because nothing after
/// it could be read. The first failure ends the work; it is reported, as a failure of `newName`, and raised. Lays out
/// the Exif elements of `document`.
void rebuildJpeg(XmlDocument& document, const InputFile& oldFile, OutputFile& newFile, const std::string& newName,
                 ErrorReporter& reporter);

} // namespace ovisto
