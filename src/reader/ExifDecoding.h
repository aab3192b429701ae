#pragma once

#include "common/Error.h"
#include "jpeg/ByteReader.h"
#include "jpeg/FilePosition.h"
#include "jpeg/IfdEntry.h"
#include "reader/DocumentText.h"
#include "reader/KeepOptions.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace ovisto {

/// Turns one APP1 segment into an Exif or an Exif1 element. What cannot be read is missing from the text.
class ExifDecoding {
public:
    /// Bytes come from `reader`, elements go to `text`. All three must outlive the object.
    ExifDecoding(ByteReader& reader, DocumentText& text, const KeepOptions& keep)
        : m_reader(reader), m_text(text), m_keep(keep)
    {
    }

    /// Decodes the segment whose marker stands at `pointer` and whose length field is `markLen`. Leaves the reader in
    /// the byte order of the segment.
    void ExifScan(std::uint16_t markLen, FilePos pointer);

    /// Whether an option left something out.
    bool changesMade() const { return m_changesMade; }

private:
    void scanDirectories(FilePos base);
    void scanOtherApp1(std::uint16_t markLen, FilePos pointer, const std::string& identifier);
    void IFDScan(FilePos base, TiffOffset ifdOffset);
    void appendEntry(const IfdEntry& entry);
    void appendBytes(std::string_view name, FilePos first, std::int64_t length, std::string_view end);
    void recordPointer(const IfdEntry& entry, int dataType, std::string_view value);
    template <class Content>
    void appendContainer(const std::string& openingTag, Content content, std::string_view closingTag);

    /// What the entries say of the places of the other parts of the segment; 0 where they say nothing.
    struct Pointers {
        TiffOffset exif, interoperability, makerNote, thumbnail;
        std::int64_t makerNoteLength = 0;
        std::int64_t thumbnailLength = 0;
    };

    ByteReader& m_reader;
    DocumentText& m_text;
    const KeepOptions& m_keep;
    bool m_changesMade = false;
    Pointers m_pointers;
    ErrorTrap m_errors; // of what could not be read
};

} // namespace ovisto
