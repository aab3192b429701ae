// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace ovisto::test {

using Bytes = std::vector<std::uint8_t>;

Bytes bytes(std::string_view text);
Bytes operator+(Bytes left, const Bytes& right);

/// One entry of a directory: its value's bytes, wherever they stand.
struct Tag {
    std::uint16_t number;
    std::uint16_t format;
    std::uint32_t count;
    Bytes value;
};

/// Builds an Exif segment's payload as a camera writes it, in either byte order.
class ExifBytes {
public:
    explicit ExifBytes(bool littleEndian = true) : m_littleEndian(littleEndian) {}

    Bytes number(std::uint64_t value, int size) const;
    Tag ascii(std::uint16_t tag, const std::string& text) const; ///< with its terminator
    Tag shorts(std::uint16_t tag, const std::vector<std::uint16_t>& values, std::uint16_t format = 3) const;
    Tag longs(std::uint16_t tag, const std::vector<std::uint32_t>& values, std::uint16_t format = 4) const;
    /// Numerators and denominators in turn.
    Tag rationals(std::uint16_t tag, const std::vector<std::uint32_t>& values, std::uint16_t format = 5) const;
    static Tag raw(std::uint16_t tag, std::uint16_t format, const Bytes& value);

    ExifBytes& ifd0(const std::vector<Tag>& tags) { return directory("IFD0", tags); }
    ExifBytes& exif(const std::vector<Tag>& tags) { return directory("Exif", tags); }
    ExifBytes& interoperability(const std::vector<Tag>& tags) { return directory("Interoperability", tags); }
    ExifBytes& gps(const std::vector<Tag>& tags) { return directory("Gps", tags); }
    ExifBytes& ifd1(const std::vector<Tag>& tags) { return directory("IFD1", tags); }
    ExifBytes& makerNote(const Bytes& note);
    ExifBytes& thumbnail(const Bytes& image);

    /// "Exif", two zero bytes, TIFF header, directories. The pointers between the parts are entered.
    Bytes payload();

private:
    ExifBytes& directory(const std::string& name, const std::vector<Tag>& tags);
    void add(const std::string& name, const Tag& tag);
    Bytes directoryBytes(const std::string& name, std::uint32_t start, std::uint32_t next) const;
    std::uint32_t directorySize(const std::string& name) const;

    bool m_littleEndian;
    std::map<std::string, std::vector<Tag>> m_directories;
    Bytes m_makerNote;
    Bytes m_thumbnail;
};

/// Builds a JPEG file segment by segment.
class JpegBytes {
public:
    JpegBytes();
    JpegBytes& segment(std::uint16_t marker, const Bytes& payload);
    JpegBytes& app0() { return segment(0xFFE0, {'J', 'F', 'I', 'F', 0, 1, 1, 0, 0, 1, 0, 1, 0, 0}); }
    JpegBytes& exif(ExifBytes& exif) { return segment(0xFFE1, exif.payload()); }
    JpegBytes& raw(const Bytes& rawBytes);
    /// Scan header, image data and end-of-image marker.
    Bytes end(const Bytes& image = {0x11, 0x22, 0xFF, 0x00, 0x33}) const;
    Bytes unfinished() const { return m_bytes; }

private:
    Bytes m_bytes;
};

/// A folder that is there for one test.
class TemporaryFolder {
public:
    TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder();

    std::string path(const std::string& name) const { return m_path + "/" + name; }
    /// Writes a file and returns its path.
    std::string file(const std::string& name, const Bytes& content) const;
    std::string file(const std::string& name, std::string_view content) const { return file(name, bytes(content)); }
    /// The names of all files, sorted.
    std::vector<std::string> names() const;

private:
    std::string m_path;
};

Bytes contentOf(const std::string& path);

/// The bytes from the scan on, without the end-of-image marker: what a rewrite must not touch.
Bytes imageData(const Bytes& jpeg);

/// A photograph with everything in it, in a byte order.
Bytes fullPhotograph(bool littleEndian);

} // namespace ovisto::test
