// SPDX-License-Identifier: MIT

#pragma once

#include "common/system/File.h"
#include "common/xml/ReadableFolders.h"
#include "common/xml/XmlNode.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace ovisto {

/// Where and why a text is not an XML document.
struct XmlParseError {
    int code = 0;
    Phrase reason;
    std::int64_t line = 0;    ///< the first is 1
    std::int64_t linepos = 0; ///< position in the line, in characters; the first is 1, unknown is 0
    std::string srcText;      ///< the whole line, in UTF-8
};

/// Whether a file is validated against the document type that it declares.
enum class Validation { Off, On };

/// Whether white space between elements counts as text.
enum class WhiteSpace { Preserve, Strip };

/// An XML document in memory. The nodes of a const one can only be read. Its entities are replaced by their texts.
/// Those that are declared or stand elsewhere are read for style sheets only, and nothing is fetched from a network;
/// what a document type declaration names is read from regular local files where validation asks for it.
///
/// One thread at a time may use a document that is being changed; several may read one that is not. The first document
/// of a process sets the memory functions and the entity loader of libxml2, which serve other users of that library as
/// before.
class XmlDocument {
public:
    XmlDocument();
    XmlDocument(XmlDocument&& other) noexcept;
    XmlDocument& operator=(XmlDocument&& other) noexcept;
    ~XmlDocument();

    /// Replaces the content by the document in `text` (UTF-8), preserving white space and CDATA sections. On failure
    /// the document is empty. A text with so many nodes or entities that they would need far more memory than the text
    /// also fails, and one that uses an entity which it does not declare or includes another document.
    std::optional<XmlParseError> loadText(std::string_view text);

    /// The same for a file, in whatever encoding it declares, including UTF-16. Strip white space only from a document
    /// that is not written again.
    std::optional<XmlParseError> loadFile(const std::string& path, Validation validation, WhiteSpace whiteSpace);

    /// The same for a style sheet for transformNode(). It is validated. What it brings in has to be below its own
    /// folder or one of `readable`.
    std::optional<XmlParseError> loadStyleSheet(const std::string& path, FileKind kind,
                                                const std::vector<std::string>& readable);

    /// Where a style sheet may read files from.
    const ReadableFolders& readableFolders() const;

    /// The document node, above the root element; no node if nothing is loaded.
    XmlNode node();
    ConstXmlNode node() const;
    XmlNode documentElement();
    ConstXmlNode documentElement() const;

    XmlNode selectSingleNode(const std::string& xpath) { return node().selectSingleNode(xpath); }
    ConstXmlNode selectSingleNode(const std::string& xpath) const { return node().selectSingleNode(xpath); }
    std::vector<XmlNode> selectNodes(const std::string& xpath) { return node().selectNodes(xpath); }
    std::vector<ConstXmlNode> selectNodes(const std::string& xpath) const { return node().selectNodes(xpath); }

    /// The document as XML text in UTF-8. It has an XML declaration only if it was loaded with one.
    std::string xml() const;

private:
    struct Content;
    std::unique_ptr<Content> m_content;
};

} // namespace ovisto
