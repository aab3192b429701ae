#include "reader/JpegXml.h"

#include "common/system/File.h"
#include "common/text/Hex.h"
#include "common/text/PathText.h"
#include "document/XmlText.h"

namespace ovisto {

namespace {

// Marker codes of JPEG (ITU-T T.81, table B.1).
constexpr std::uint16_t kStartOfImage = 0xFFD8;
constexpr std::uint16_t kStartOfScan = 0xFFDA;
constexpr std::uint16_t kApp0 = 0xFFE0;
constexpr std::uint16_t kApp1 = 0xFFE1;
constexpr std::uint16_t kFirstMarker = 0xFF01;

} // namespace

Translation JpegXml::XMLtranslate(const std::string& FileName, const KeepOptions& keep)
{
    m_keep = keep;
    m_reader.reset();
    m_text.clear();
    m_changesMade = false;
    m_structureError.reset();

    ErrorTrap trap;
    std::optional<InputFile> file;
    trap.run([&] { file.emplace(FileName); });
    if (trap.pending())
        return {.text = {}, .error = Error{kOpenFailed, trap.take().description + "  file=" + FileName}};

    m_reader.emplace(*file);
    std::uint16_t start = 0;
    trap.run([&] { start = reader().ReadInteger({1}); });
    if (trap.pending())
        return {.text = {}, .error = trap.take()};
    if (start != kStartOfImage)
        return {.text = {},
                .error = Error{kStructureError, "Not a JPEG file - hFFD8 expected at start of file " + FileName}};

    constexpr std::size_t kUsualSize = std::size_t{64} * 1024;
    m_text.reserve(kUsualSize);
    const auto [folder, name] = splitPath(FileName);
    m_text += "<JPEG" + xmlAtt("d", "1") + xmlAtt("folder", folder) + xmlAtt("fileName", name) + ">\r\n";
    trap.run([&] { scanSegments(FileName); });
    m_text += "</JPEG>";
    if (!m_structureError && trap.pending())
        m_structureError = trap.take();
    m_reader.reset();
    return {.text = std::move(m_text), .ChangesMade = m_changesMade, .error = m_structureError};
}

/// Walks the segments from behind the start-of-image marker to the first scan.
void JpegXml::scanSegments(const std::string& FileName)
{
    FilePos position{3};
    for (;;) {
        reader().littleEndian = false;
        const std::uint16_t marker = reader().ReadInteger(position);
        const std::uint16_t length = reader().ReadInteger(position + 2);
        if (marker < kFirstMarker) {
            m_structureError =
                Error{kStructureError, "Header seems corrupted - unknown Marker " + hexNumber(marker) + " " + FileName};
            return;
        }
        if (marker == kApp1)
            ExifScan(length, position);
        else if (marker == kApp0)
            MarkerScan(marker, length, "APP0", position);
        else if (marker == kStartOfScan)
            MarkerScan(marker, length, "SOS", position);
        else
            MarkerScan(marker, length, "APP1", position);
        if (reader().failure())
            throw Error(*reader().failure());
        position = position + 2 + length;
        if (marker == kStartOfScan)
            break;
        if (position.value > reader().fileSize()) {
            m_structureError = Error{kStructureError, "No StartOfStream marker found " + FileName};
            return;
        }
    }
    appendImage(position);
}

/// Appends one segment with its payload in hexadecimal.
void JpegXml::MarkerScan(std::uint16_t markNo, std::uint16_t markLen, std::string_view markName, FilePos pointer)
{
    const std::string name(markName);
    const std::string id = name == "APP1" ? xmlAtt("id", hexNumber(markNo)) : std::string();
    const std::string payload = reader().ReadHexString(pointer + 4, std::int64_t{markLen} - 2);
    appendElement("<" + name + id + xmlAtt("d", "1") + ">", payload, "</" + name + ">\r\n");
}

void JpegXml::appendImage(FilePos firstByte)
{
    const std::int64_t length = reader().fileSize() - firstByte.value - 2;
    append("<IMG" + xmlAtt("offset", firstByte.value) + xmlAtt("length", length) + xmlAtt("d", "1") + "></IMG>");
}

/// Appends the whole of an element, or nothing when the text has reached its limit.
void JpegXml::appendElement(std::string_view openingTag, std::string_view content, std::string_view closingTag)
{
    const std::size_t size = openingTag.size() + content.size() + closingTag.size();
    reader().charge(static_cast<std::int64_t>(size));
    if (content.size() > m_text.size())
        m_text.reserve(2 * m_text.size() + size); // so that the few characters behind a huge value do not double it
    m_text.append(openingTag).append(content).append(closingTag);
}

} // namespace ovisto
