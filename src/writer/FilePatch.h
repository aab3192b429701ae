#pragma once

#include "common/ErrorReport.h"
#include "common/system/File.h"
#include "common/xml/XmlDocument.h"

#include <string>

namespace ovisto {

/// Writes a whole JPEG file to `newFile`: what `after` says differently from `before`, the document of `oldFile` as it
/// is with nothing left out, is changed where it stands; all else is copied byte for byte. A file that is not the one
/// that `before` and `after` were read from is refused, and so is a change that cannot be made; what was not changed is
/// never a reason. The first failure ends the work and is raised.
void patchJpeg(const XmlDocument& before, const XmlDocument& after, const InputFile& oldFile, OutputFile& newFile,
               ErrorReporter& reporter);

} // namespace ovisto
