// SPDX-License-Identifier: MIT

#pragma once

#include "common/xml/XmlDocument.h"
#include "support/JpegBytes.h"
#include "writer/DocumentSave.h"

#include <cstdint>
#include <span>
#include <string>

namespace ovisto::fuzz {

using test::Bytes;

/// The path of a file with this content, in memory where the system has such a folder, so that the disk is not what is
/// tried. The next call for the same name replaces it; nothing else is then in its folder.
std::string fileWith(std::span<const std::uint8_t> content, const std::string& name);

/// What was done to a document before it is saved.
struct Edit {
    bool isSavable = true;       ///< whether the document is still worth a save
    bool isInExif = true;        ///< whether nothing but an Exif element was edited
    bool changesNothing = false; ///< whether the document is as it was read
    bool isOfAnything = false;   ///< whether any node may have another text
    std::string path{};          ///< of the node whose text was set; empty for none
};

/// Whether an entry only says where something stands.
bool saysPlace(const ConstXmlNode& entry);

/// Saves `document`, which is that of the photograph at `path` after `edit`. Returns what went wrong.
std::string saveFault(XmlDocument& document, const Edit& edit, const std::string& path, WritingWay way);

} // namespace ovisto::fuzz
