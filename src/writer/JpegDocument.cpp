// SPDX-License-Identifier: MIT

#include "writer/JpegDocument.h"

#include "common/system/FileReplacement.h"
#include "writer/NewVersion.h"

namespace ovisto {

void JpegDocument::WriteJpeg(XmlDocument& document, const std::string& fileName)
{
    NewVersion version(m_reporter, fileName, {});
    version.write(document, m_read);
    version.bringToDisk();
    version.putInPlace();
    attempt(m_reporter, fileName, [&] { syncFolder(version.folder()); });
}

} // namespace ovisto
