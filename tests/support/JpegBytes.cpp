// SPDX-License-Identifier: MIT

#include "support/JpegBytes.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace ovisto::test {

namespace {

constexpr std::uint32_t kTiffHeader = 8;

void append(Bytes& to, const Bytes& from)
{
    to.insert(to.end(), from.begin(), from.end());
}

} // namespace

Bytes bytes(std::string_view text)
{
    return {text.begin(), text.end()};
}

Bytes operator+(Bytes left, const Bytes& right)
{
    append(left, right);
    return left;
}

Bytes ExifBytes::number(std::uint64_t value, int size) const
{
    Bytes result;
    for (int i = 0; i < size; ++i)
        result.push_back(static_cast<std::uint8_t>(value >> (8 * (m_littleEndian ? i : size - 1 - i))));
    return result;
}

Tag ExifBytes::ascii(std::uint16_t tag, const std::string& text) const
{
    return {tag, 2, static_cast<std::uint32_t>(text.size() + 1), bytes(text) + Bytes{0}};
}

Tag ExifBytes::shorts(std::uint16_t tag, const std::vector<std::uint16_t>& values, std::uint16_t format) const
{
    Tag result{tag, format, static_cast<std::uint32_t>(values.size()), {}};
    for (const auto value : values)
        append(result.value, number(value, 2));
    return result;
}

Tag ExifBytes::longs(std::uint16_t tag, const std::vector<std::uint32_t>& values, std::uint16_t format) const
{
    Tag result{tag, format, static_cast<std::uint32_t>(values.size()), {}};
    for (const auto value : values)
        append(result.value, number(value, 4));
    return result;
}

Tag ExifBytes::rationals(std::uint16_t tag, const std::vector<std::uint32_t>& values, std::uint16_t format) const
{
    Tag result = longs(tag, values, format);
    result.count /= 2;
    return result;
}

Tag ExifBytes::raw(std::uint16_t tag, std::uint16_t format, const Bytes& value)
{
    return {tag, format, static_cast<std::uint32_t>(value.size()), value};
}

ExifBytes& ExifBytes::directory(const std::string& name, const std::vector<Tag>& tags)
{
    m_directories[name] = tags;
    return *this;
}

ExifBytes& ExifBytes::makerNote(const Bytes& note)
{
    m_makerNote = note;
    return *this;
}

ExifBytes& ExifBytes::thumbnail(const Bytes& image)
{
    m_thumbnail = image;
    return *this;
}

void ExifBytes::add(const std::string& name, const Tag& tag)
{
    auto& tags = m_directories[name];
    std::erase_if(tags, [&](const Tag& other) { return other.number == tag.number; });
    tags.push_back(tag);
    std::ranges::sort(tags, {}, &Tag::number);
}

std::uint32_t ExifBytes::directorySize(const std::string& name) const
{
    const auto found = m_directories.find(name);
    if (found == m_directories.end())
        return 0;
    std::size_t size = 6;
    for (const Tag& tag : found->second)
        size += 12 + (tag.value.size() > 4 ? tag.value.size() : 0);
    return static_cast<std::uint32_t>(size);
}

Bytes ExifBytes::directoryBytes(const std::string& name, std::uint32_t start, std::uint32_t next) const
{
    const auto found = m_directories.find(name);
    if (found == m_directories.end())
        return {};
    const std::vector<Tag>& tags = found->second;
    Bytes entries = number(tags.size(), 2);
    Bytes outside;
    const std::size_t outsideStart = start + 6 + 12 * tags.size();
    for (const Tag& tag : tags) {
        append(entries, number(tag.number, 2));
        append(entries, number(tag.format, 2));
        append(entries, number(tag.count, 4));
        Bytes field = tag.value;
        if (field.size() > 4) {
            field = number(outsideStart + outside.size(), 4);
            append(outside, tag.value);
        }
        field.resize(4);
        append(entries, field);
    }
    return entries + number(next, 4) + outside;
}

Bytes ExifBytes::payload()
{
    const auto noteSize = static_cast<std::uint32_t>(m_makerNote.size());
    if (m_directories.contains("Exif") || noteSize > 0)
        add("IFD0", longs(0x8769, {0}));
    if (m_directories.contains("Interoperability"))
        add("Exif", longs(0xA005, {0}));
    if (m_directories.contains("Gps"))
        add("IFD0", longs(0x8825, {0}));
    if (noteSize > 0)
        add("Exif", {0x927C, 7, noteSize, Bytes(5)}); // five bytes: its field holds an offset
    if (!m_thumbnail.empty()) {
        add("IFD1", longs(0x0201, {0}));
        add("IFD1", longs(0x0202, {static_cast<std::uint32_t>(m_thumbnail.size())}));
    }
    const std::uint32_t exifStart = kTiffHeader + directorySize("IFD0");
    const std::uint32_t interoperabilityStart = exifStart + directorySize("Exif");
    const std::uint32_t gpsStart = interoperabilityStart + directorySize("Interoperability");
    const std::uint32_t noteStart = gpsStart + directorySize("Gps");
    const std::uint32_t ifd1Start = noteStart + noteSize;
    const std::uint32_t thumbnailStart = ifd1Start + directorySize("IFD1");
    for (auto& [name, tags] : m_directories) {
        for (Tag& tag : tags) {
            if (tag.number == 0x8769)
                tag.value = number(exifStart, 4);
            else if (tag.number == 0xA005)
                tag.value = number(interoperabilityStart, 4);
            else if (tag.number == 0x8825)
                tag.value = number(gpsStart, 4);
            else if (tag.number == 0x0201 && name == "IFD1" && !m_thumbnail.empty())
                tag.value = number(thumbnailStart, 4);
        }
    }
    Bytes exif = directoryBytes("Exif", exifStart, 0);
    if (noteSize > 0) { // the field of 927C says where the note is
        const auto& tags = m_directories["Exif"];
        const auto index = static_cast<std::size_t>(std::ranges::find(tags, 0x927C, &Tag::number) - tags.begin());
        std::ranges::copy(number(noteStart, 4), exif.begin() + static_cast<std::ptrdiff_t>(2 + 12 * index + 8));
    }
    const bool hasSecond = m_directories.contains("IFD1");
    return bytes("Exif") + Bytes{0, 0} + bytes(m_littleEndian ? "II" : "MM") + number(42, 2) + number(kTiffHeader, 4) +
           directoryBytes("IFD0", kTiffHeader, hasSecond ? ifd1Start : 0) + exif +
           directoryBytes("Interoperability", interoperabilityStart, 0) + directoryBytes("Gps", gpsStart, 0) +
           m_makerNote + directoryBytes("IFD1", ifd1Start, 0) + m_thumbnail;
}

JpegBytes::JpegBytes() : m_bytes({0xFF, 0xD8}) {}

JpegBytes& JpegBytes::segment(std::uint16_t marker, const Bytes& payload)
{
    const std::size_t length = payload.size() + 2;
    return raw(Bytes{static_cast<std::uint8_t>(marker >> 8), static_cast<std::uint8_t>(marker),
                     static_cast<std::uint8_t>(length >> 8), static_cast<std::uint8_t>(length)} +
               payload);
}

JpegBytes& JpegBytes::raw(const Bytes& rawBytes)
{
    append(m_bytes, rawBytes);
    return *this;
}

Bytes JpegBytes::end(const Bytes& image) const
{
    return JpegBytes(*this).segment(0xFFDA, {1, 1, 0, 0, 63, 0}).raw(image).raw({0xFF, 0xD9}).unfinished();
}

TemporaryFolder::TemporaryFolder()
{
    std::string pattern = std::filesystem::temp_directory_path() / "ovisto-test-XXXXXX";
    if (mkdtemp(pattern.data()) == nullptr)
        std::abort();
    m_path = pattern;
}

TemporaryFolder::~TemporaryFolder()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

std::string TemporaryFolder::file(const std::string& name, const Bytes& content) const
{
    std::ofstream(path(name), std::ios::binary)
        .write(reinterpret_cast<const char*>(content.data()), static_cast<std::streamsize>(content.size()));
    return path(name);
}

std::vector<std::string> TemporaryFolder::names() const
{
    std::vector<std::string> found;
    for (const auto& entry : std::filesystem::directory_iterator(m_path))
        found.push_back(entry.path().filename());
    std::ranges::sort(found);
    return found;
}

Bytes contentOf(const std::string& path)
{
    if (!std::filesystem::is_regular_file(path))
        return {};
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

Bytes imageData(const Bytes& jpeg)
{
    std::size_t position = 2;
    while (position + 4 <= jpeg.size()) {
        const bool isScan = jpeg[position] == 0xFF && jpeg[position + 1] == 0xDA;
        position += 2 + std::size_t{256} * jpeg[position + 2] + jpeg[position + 3];
        if (isScan && position + 2 <= jpeg.size())
            return {jpeg.begin() + static_cast<std::ptrdiff_t>(position), jpeg.end() - 2};
    }
    return {};
}

Bytes fullPhotograph(bool littleEndian)
{
    ExifBytes exif(littleEndian);
    const auto wide = [&](const std::u16string& text) {
        Bytes units;
        for (const char16_t unit : text + u'\0')
            append(units, exif.number(unit, 2));
        return units;
    };
    exif.ifd0({exif.ascii(0x010F, "Acme"), exif.ascii(0x0110, "M1"), exif.shorts(0x0112, {1}),
               exif.rationals(0x011A, {180, 1}), ExifBytes::raw(0x9C9B, 1, wide(u"Héllo")),
               ExifBytes::raw(0x9C9C, 1, wide(u"A<B"))})
        .exif({exif.rationals(0x829A, {1, 250}), ExifBytes::raw(0x9000, 7, bytes("0220")),
               exif.ascii(0x9003, "2024:05:06 07:08:09"), ExifBytes::raw(0x9101, 7, {1, 2, 3, 0}),
               exif.shorts(0x9214, {10, 20, 30})})
        .interoperability({exif.ascii(0x0001, "R98")})
        .makerNote({0xDE, 0xAD, 0xBE, 0xEF, 0x00})
        .ifd1({exif.shorts(0x0103, {6})})
        .thumbnail({0xFF, 0xD8, 0x01, 0xFF, 0xD9});
    return JpegBytes()
        .app0()
        .exif(exif)
        .segment(0xFFE1, bytes("http://ns.adobe.com/xap/1.0/") + Bytes{0} + bytes("<x:xmpmeta/>"))
        .segment(0xFFDB, {0, 1, 2})
        .end();
}

} // namespace ovisto::test
