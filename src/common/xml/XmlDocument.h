#pragma once

#include "common/system/File.h"
#include "common/xml/XmlNode.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace ovisto {

/// Where and why a text is no XML document.
struct XmlParseError {
    int code = 0;
    Phrase reason;
    std::int64_t line = 0;    ///< the first is 1
    std::int64_t linepos = 0; ///< characters into the line; the first is 1, 0 when unknown
    std::string srcText;      ///< the whole line
};

/// Whether a document type that a file declares is held against its content.
enum class Validation { Off, On };

/// Whether white space between elements counts as text.
enum class WhiteSpace { Preserve, Strip };

/// An XML document in memory. The nodes of a const one can only be read. External entities are read for style sheets
/// only, and nothing is fetched from a network; what a document type declaration names is read from regular local files
/// where validation asks for it.
class XmlDocument {
public:
    XmlDocument();
    XmlDocument(XmlDocument&& other) noexcept;
    XmlDocument& operator=(XmlDocument&& other) noexcept;
    ~XmlDocument();

    /// Replaces the content by the document in `text` (UTF-8), white space and CDATA sections preserved. On failure the
    /// document is empty. A text of so many nodes that they would need far more memory than the text fails too.
    std::optional<XmlParseError> loadText(std::string_view text);

    /// The same for a file in any encoding that it declares, UTF-16 included. One whose white space is stripped is for
    /// reading only.
    std::optional<XmlParseError> loadFile(const std::string& path, Validation validation, WhiteSpace whiteSpace);

    /// The same for a style sheet, which is validated too, and has the texts of its entities put in, for
    /// transformNode().
    std::optional<XmlParseError> loadStyleSheet(const std::string& path, FileKind kind);

    /// The document node, above the root element. No node when nothing is loaded.
    XmlNode node();
    ConstXmlNode node() const;
    XmlNode documentElement();
    ConstXmlNode documentElement() const;

    XmlNode selectSingleNode(const std::string& xpath) { return node().selectSingleNode(xpath); }
    ConstXmlNode selectSingleNode(const std::string& xpath) const { return node().selectSingleNode(xpath); }
    std::vector<XmlNode> selectNodes(const std::string& xpath) { return node().selectNodes(xpath); }
    std::vector<ConstXmlNode> selectNodes(const std::string& xpath) const { return node().selectNodes(xpath); }

    /// The document as XML text in UTF-8, with an XML declaration only where it was loaded with one.
    std::string xml() const;

private:
    struct Content;
    std::unique_ptr<Content> m_content;
};

} // namespace ovisto
