// SPDX-License-Identifier: MIT

#pragma once

#include "jpeg/ByteReader.h"

#include <string>
#include <string_view>
#include <utility>

namespace ovisto {

/// The growing text of a document. Appended text is charged to `reader`: when textLimit() is reached, nothing is
/// appended and kOutOfMemory is raised.
class DocumentText {
public:
    /// `reader` must outlive the text.
    explicit DocumentText(ByteReader& reader);

    /// Appends the whole of an element or nothing.
    void appendElement(std::string_view openingTag, std::string_view content, std::string_view closingTag);
    void append(std::string_view text) { appendElement(text, {}, {}); }

    /// Appends a tag that must be there however long the text is. It is not charged.
    void appendTag(std::string_view tag) { m_text += tag; }

    /// The text, which is empty afterwards.
    std::string take() { return std::move(m_text); }

private:
    ByteReader& m_reader;
    std::string m_text;
};

} // namespace ovisto
