// SPDX-License-Identifier: MIT

#pragma once

#include "common/ErrorReport.h"
#include "common/system/File.h"
#include "writer/DocumentSave.h"

namespace ovisto {

/// Writes a whole JPEG file to `newFile`: what `save.after` says differently from `save.before`, the document of
/// `oldFile` as it is with nothing left out, is changed where it stands; what `save.clearance` names is left out; all
/// else is copied byte for byte. A file that is not the one that the documents were read from is refused, and so is a
/// change that cannot be made; what was not changed is never a reason. The first failure ends the work and is raised.
void patchJpeg(const DocumentSave& save, const InputFile& oldFile, OutputFile& newFile, ErrorReporter& reporter);

} // namespace ovisto
