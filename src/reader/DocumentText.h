#pragma once

#include "jpeg/ByteReader.h"

#include <string>
#include <string_view>
#include <utility>

namespace ovisto {

/// The growing text of a document. What is appended counts as text made of what `reader` read: raises kOutOfMemory,
/// and appends nothing, when textLimit() is reached.
class DocumentText {
public:
    /// `reader` must outlive the text.
    explicit DocumentText(ByteReader& reader);

    /// Appends the whole of an element or nothing.
    void appendElement(std::string_view openingTag, std::string_view content, std::string_view closingTag);
    void append(std::string_view text) { appendElement(text, {}, {}); }

    /// Opens or closes an element that is there however long the text is; it does not count.
    void appendTag(std::string_view tag) { m_text += tag; }

    /// The text, which is empty afterwards.
    std::string take() { return std::move(m_text); }

private:
    ByteReader& m_reader;
    std::string m_text;
};

} // namespace ovisto
