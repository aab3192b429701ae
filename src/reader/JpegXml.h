#pragma once

#include "common/Error.h"
#include "jpeg/ByteReader.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace ovisto {

struct IfdEntry;

/// What a translation keeps of the parts of a file that not everybody wants.
struct KeepOptions {
    bool pCodifyMakerNote = true; ///< the maker note: tag 927C and its bytes
    bool pCodifyThumb = true;     ///< the second directory with the thumbnail
    bool pCodifyExif1 = true;     ///< APP1 segments that are not Exif
};

/// What became of a JPEG file.
struct Translation {
    /// The document, root element JPEG, in UTF-8 without an XML declaration. After an error it holds what was read
    /// before, well-formed, or nothing.
    std::string text;
    /// Whether an option left out something that the file holds: saving the document would change the file.
    bool ChangesMade = false;
    std::optional<Error> error;
};

/// Reads one JPEG file and tells its metadata as an XML document.
class JpegXml {
public:
    /// Translates the file at `FileName`. The error is kOpenFailed when it cannot be opened, kStructureError when it is
    /// no sound JPEG; its description is the message followed by the file name. It is kDeviceError or kOutOfMemory when
    /// the disk failed, or the directories say the same bytes again and again, so that textLimit() was reached.
    /// All other faults of a file only leave the text without what could not be read.
    Translation XMLtranslate(const std::string& FileName, const KeepOptions& keep = {});

private:
    void scanSegments(const std::string& FileName);
    void MarkerScan(std::uint16_t markNo, std::uint16_t markLen, std::string_view markName, FilePos pointer);
    void appendImage(FilePos firstByte);

    void ExifScan(std::uint16_t markLen, FilePos pointer);
    void scanDirectories(FilePos base);
    void scanOtherApp1(std::uint16_t markLen, FilePos pointer, const std::string& identifier);
    void IFDScan(FilePos base, TiffOffset ifdOffset);
    void appendEntry(const IfdEntry& entry);
    void appendBytes(std::string_view name, FilePos first, std::int64_t length, std::string_view end);
    void recordPointer(const IfdEntry& entry, int dataType, std::string_view value);
    template <class Content>
    void appendContainer(const std::string& openingTag, Content content, std::string_view closingTag);

    void append(std::string_view text) { appendElement(text, {}, {}); }
    void appendElement(std::string_view openingTag, std::string_view content, std::string_view closingTag);
    ByteReader& reader() { return *m_reader; }

    /// What the entries of an Exif segment say of the places of its other parts; 0 where they say nothing.
    struct ExifPointers {
        TiffOffset exif, interoperability, makerNote, thumbnail;
        std::int64_t makerNoteLength = 0;
        std::int64_t thumbnailLength = 0;
    };

    KeepOptions m_keep;
    std::optional<ByteReader> m_reader;
    std::string m_text;
    bool m_changesMade = false;
    std::optional<Error> m_structureError;
    ExifPointers m_pointers;
    ErrorTrap m_decoding; // the errors of the Exif segment being read
};

} // namespace ovisto
