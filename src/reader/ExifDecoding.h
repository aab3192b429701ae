// SPDX-License-Identifier: MIT

#pragma once

#include "common/Error.h"
#include "document/Directories.h"
#include "jpeg/ByteReader.h"
#include "jpeg/FilePosition.h"
#include "jpeg/IfdEntry.h"
#include "reader/DocumentText.h"
#include "reader/EntryValue.h"
#include "reader/KeepOptions.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string>
#include <string_view>

namespace ovisto {

/// Turns one APP1 segment into an Exif or an Exif1 element. What cannot be read is missing from the text.
class ExifDecoding {
public:
    /// Reads from `reader` and appends elements to `text`. All three arguments must outlive the object.
    ExifDecoding(ByteReader& reader, DocumentText& text, const KeepOptions& keep)
        : m_reader(reader), m_text(text), m_keep(keep)
    {
    }

    /// Decodes the segment whose marker is at `pointer` and whose length field is `markLen`. Leaves the reader in the
    /// byte order of the segment.
    void ExifScan(std::uint16_t markLen, FilePos pointer);

    /// Whether an option left something out.
    bool changesMade() const { return m_changesMade; }

private:
    /// Where a part of the segment is; 0 if no entry says so.
    struct Place {
        TiffOffset offset;
        std::int64_t length = 0;
    };

    void scanFirstDirectory(FilePos base);
    void scanDirectory(const ExifPart& directory, FilePos base);
    void scanOtherApp1(std::uint16_t markLen, FilePos pointer, const std::string& identifier);
    void IFDScan(const ExifPart& directory, FilePos base, TiffOffset ifdOffset);
    void appendEntry(const ExifPart& directory, const IfdEntry& entry);
    void appendPart(const ExifPart& part, FilePos base);
    void appendBytes(const ExifPart& part, FilePos base);
    void appendFullDirectory(const ExifPart& part, FilePos base);
    void appendFullApp1(std::uint16_t markLen, FilePos pointer);
    template <class Content>
    void appendContainer(const std::string& openingTag, Content content, std::string_view closingTag);
    void recordPointer(const IfdEntry& entry, const EntryValue& value);
    void recordOffset(const ExifPart& part, const IfdEntry& entry, const EntryValue& value);
    bool isThere(const ExifPart& part);
    Place& placeOf(const ExifPart& part) { return m_places[static_cast<std::size_t>(&part - kExifParts)]; }

    ByteReader& m_reader;
    DocumentText& m_text;
    const KeepOptions& m_keep;
    bool m_changesMade = false;
    std::array<Place, std::size(kExifParts)> m_places; // a place for each row of the table
    ErrorTrap m_errors;                                // of what could not be read
};

} // namespace ovisto
