// SPDX-License-Identifier: MIT

#include "reader/JpegXml.h"

#include "common/system/File.h"
#include "common/text/CodePage.h"
#include "common/text/Hex.h"
#include "common/text/PathText.h"
#include "document/XmlText.h"
#include "jpeg/ByteReader.h"
#include "jpeg/FilePosition.h"
#include "jpeg/Markers.h"
#include "jpeg/Segments.h"
#include "reader/DocumentText.h"
#include "reader/ExifDecoding.h"

#include <cstdint>
#include <string_view>
#include <utility>

namespace ovisto {

namespace {

/// One translation of an open file.
class FileTranslation {
public:
    FileTranslation(const InputFile& file, const std::string& fileName, const KeepOptions& keep)
        : m_fileName(fileName), m_keep(keep), m_reader(file), m_text(m_reader)
    {
    }

    Translation run();

private:
    void checkStart();
    void scanSegments();
    void scanSegment(const Segment& segment);
    void MarkerScan(std::uint16_t markNo, std::uint16_t markLen, std::string_view markName, FilePos pointer);
    void appendImage(FilePos firstByte);

    const std::string& m_fileName;
    const KeepOptions& m_keep;
    ByteReader m_reader;
    DocumentText m_text;
    bool m_changesMade = false;
};

Translation FileTranslation::run()
{
    ErrorTrap trap;
    trap.run([&] { checkStart(); });
    if (trap.pending())
        return {.text = {}, .error = trap.take()};

    const auto [folder, name] = splitPath(m_fileName);
    if (m_keep.reading == Reading::Full)
        m_text.appendTag("<JPEG" + xmlAtt("d", "1") + attributeText("folder", decodedText(folder)) +
                         attributeText("fileName", decodedText(name)) + xmlAtt("reading", "full") + ">\r\n");
    else
        m_text.appendTag("<JPEG" + xmlAtt("d", "1") + xmlAtt("folder", folder) + xmlAtt("fileName", name) + ">\r\n");
    trap.run([&] { scanSegments(); });
    m_text.appendTag("</JPEG>");
    Translation result{.text = m_text.take(), .ChangesMade = m_changesMade, .error = {}};
    if (trap.pending())
        result.error = trap.take();
    return result;
}

void FileTranslation::checkStart()
{
    if (m_reader.ReadInteger({1}) != kStartOfImage)
        throw Error{kStructureError, {Message::NotAJpeg, m_fileName}};
}

void FileTranslation::scanSegments()
{
    const SegmentsResult segments = walkSegments(m_reader, [&](const Segment& segment) { scanSegment(segment); });
    switch (segments.end) {
    case SegmentsEnd::Scan:
        return appendImage(segments.position);
    case SegmentsEnd::UnknownMarker:
        throw Error{kStructureError, {Message::UnknownMarker, hexNumber(segments.marker), m_fileName}};
    case SegmentsEnd::EndOfFile:
        throw Error{kStructureError, {Message::NoScan, m_fileName}};
    }
}

void FileTranslation::scanSegment(const Segment& segment)
{
    if (segment.marker == kApp1) {
        ExifDecoding exif(m_reader, m_text, m_keep);
        exif.ExifScan(segment.length, segment.position);
        m_changesMade = m_changesMade || exif.changesMade();
    } else if (segment.marker == kApp0) {
        MarkerScan(segment.marker, segment.length, "APP0", segment.position);
    } else if (segment.marker == kStartOfScan) {
        MarkerScan(segment.marker, segment.length, "SOS", segment.position);
    } else {
        MarkerScan(segment.marker, segment.length, "APP1", segment.position);
    }
    if (m_reader.failure())
        throw Error(*m_reader.failure());
}

/// Appends one segment with its payload in hexadecimal.
void FileTranslation::MarkerScan(std::uint16_t markNo, std::uint16_t markLen, std::string_view markName,
                                 FilePos pointer)
{
    const std::string name(markName);
    const std::string id = name == "APP1" ? xmlAtt("id", hexNumber(markNo)) : std::string();
    const std::string payload = m_reader.ReadHexString(pointer + 4, std::int64_t{markLen} - 2);
    m_text.appendElement("<" + name + id + xmlAtt("d", "1") + ">", payload, "</" + name + ">\r\n");
}

void FileTranslation::appendImage(FilePos firstByte)
{
    const ImagePlace image = imagePlaceFrom(firstByte, m_reader.fileSize());
    m_text.append("<IMG" + xmlAtt("offset", image.offset) + xmlAtt("length", image.length) + xmlAtt("d", "1") +
                  "></IMG>");
}

} // namespace

Translation JpegXml::XMLtranslate(const std::string& FileName, const KeepOptions& keep) const
{
    ErrorTrap trap;
    std::optional<InputFile> file;
    trap.run([&] { file.emplace(openJpeg(FileName)); });
    if (trap.pending())
        return {.text = {}, .error = trap.take()};
    return XMLtranslate(*file, FileName, keep);
}

Translation JpegXml::XMLtranslate(const InputFile& file, const std::string& FileName, const KeepOptions& keep) const
{
    return FileTranslation(file, FileName, keep).run();
}

InputFile openJpeg(const std::string& FileName)
{
    ErrorTrap trap;
    std::optional<InputFile> file;
    trap.run([&] { file.emplace(FileName); });
    if (trap.pending())
        throw Error{kOpenFailed, {Message::OpenFailed, trap.take().description, FileName}};
    return std::move(*file);
}

} // namespace ovisto
