#pragma once

#include "common/ErrorReport.h"
#include "common/xml/XmlDocument.h"
#include "document/TagDictionary.h"

#include <string>

namespace ovisto {

/// The properties that the operating system shows of a file too. Each has a box of its own in the window.
enum class OsProperty { Title, Subject, Comments, Keywords };

/// The nodes of these properties in the document shown; no node where it does not have the property.
class OsProperties {
public:
    XmlNode TitleNode;
    XmlNode SubjectNode;
    XmlNode CommentsNode;
    XmlNode KeywordsNode;

    /// The variable for the node at `path`; null when no such property is there.
    XmlNode* nodeOf(const std::string& path);

    /// What the box shows. Comments and keywords may have several lines, which end with CR LF in the box.
    std::string boxText(OsProperty property) const;

    /// Takes the text of a box that is being left into the document, creating the node where it is missing. Returns
    /// whether the document has changed.
    bool leave(OsProperty property, const std::string& boxText, XmlDocument& JpegDoc, const TagDictionary& Merovel,
               ErrorReporter& reporter);
};

/// `text` with each LF replaced by CR LF, and each CR LF by LF.
std::string withCrLf(const std::string& text);
std::string withLf(const std::string& text);

} // namespace ovisto
