// SPDX-License-Identifier: MIT

#pragma once

#include "common/ErrorReport.h"
#include "common/xml/XmlDocument.h"
#include "document/TagDictionary.h"

#include <optional>
#include <string>

namespace ovisto {

/// The properties of a file that the operating system also shows. Each has its own box in the window.
enum class OsProperty { Title, Subject, Comments, Keywords };

/// The nodes of these properties in the document shown; no node if it does not have the property.
class OsProperties {
public:
    XmlNode TitleNode;
    XmlNode SubjectNode;
    XmlNode CommentsNode;
    XmlNode KeywordsNode;

    /// The member for the node at `path`; null if `path` is not one of these properties.
    XmlNode* nodeOf(const std::string& path);

    /// The text for the box. Comments and keywords may have several lines, which end with CR LF.
    std::string boxText(OsProperty property) const;

    /// Finds the nodes again, in a document that has more of them now, or fewer.
    void lookUp(XmlDocument& JpegDoc);

    /// Writes the text of a box that the focus leaves into the document, creating a missing node. Returns whether the
    /// document changed.
    bool leave(OsProperty property, const std::string& boxText, XmlDocument& JpegDoc, const TagDictionary& Merovel,
               ErrorReporter& reporter);
};

/// The property whose node has this path; nothing if it is another node's.
std::optional<OsProperty> osPropertyAt(const std::string& nodePath);

/// `text` with each line break that is LF or CR LF as CR LF (withCrLf) or as LF (withLf).
std::string withCrLf(const std::string& text);
std::string withLf(const std::string& text);

} // namespace ovisto
