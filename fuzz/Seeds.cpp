// SPDX-License-Identifier: MIT

#include "Seeds.h"

#include "Photograph.h"

#include "collection/DocumentLoad.h"
#include "common/system/File.h"

#include <filesystem>
#include <string>
#include <vector>

namespace ovisto::fuzz {

namespace {

namespace fs = std::filesystem;
using test::bytes;
using test::ExifBytes;
using test::JpegBytes;

void write(const fs::path& path, const Bytes& content)
{
    fs::create_directories(path.parent_path());
    writeTextFile(path, {reinterpret_cast<const char*>(content.data()), content.size()});
}

/// Each data type, values inside their entry and outside, and directories that the reader does not know.
Bytes allTypes(bool littleEndian)
{
    ExifBytes exif(littleEndian);
    exif.ifd0({exif.ascii(0x010E, ""), exif.ascii(0x010F, "abc"), exif.shorts(0x0102, {8, 8, 8}),
               exif.longs(0x8825, {26}), exif.longs(0x014A, {26}), exif.rationals(0x011A, {0, 0})})
        .exif({ExifBytes::raw(0x9286, 7, bytes({"ASCII\0\0\0a comment", 17})), exif.longs(0x9201, {1, 2}, 9),
               exif.rationals(0x9204, {0xFFFFFFFF, 3}, 10), exif.shorts(0x9207, {1, 0xFFFF}, 8),
               ExifBytes::raw(0xA301, 6, {0x80}), exif.longs(0xC000, {1}, 11),
               ExifBytes::raw(0xC001, 12, Bytes(8, 0x3F)), ExifBytes::raw(0xC002, 99, {1})})
        .ifd1({exif.longs(0x0111, {26}), exif.longs(0x0117, {5})});
    return JpegBytes()
        .exif(exif)
        .segment(0xFFED, bytes("Photoshop 3.0"))
        .segment(0xFFFE, bytes("a comment"))
        .exif(exif)
        .end();
}

std::vector<Bytes> photographs()
{
    return {test::fullPhotograph(true), test::fullPhotograph(false), allTypes(true), allTypes(false),
            JpegBytes().app0().end()};
}

void writePhotographs(const fs::path& folder)
{
    int number = 0;
    for (const Bytes& photograph : photographs()) {
        const std::string name = std::to_string(number++);
        write(folder / "read" / name, photograph);
        for (const int kind : {0, 1, 2, 3, 4, 5, 128, 129, 130, 131, 132, 133}) {
            const auto other = static_cast<std::uint8_t>(number * 3 + kind);
            Bytes input = photograph;
            input.insert(input.end(), {static_cast<std::uint8_t>(kind), 0, other, other});
            write(folder / "rebuild" / (name + "-" + std::to_string(kind)), input);
            write(folder / "keep" / (name + "-" + std::to_string(kind)), input);
        }
    }
}

void writeText(const fs::path& folder, std::uint8_t kind, const std::string& name, std::string_view text)
{
    Bytes input = bytes(text);
    input.insert(input.begin(), kind);
    write(folder / "readText" / name, input);
}

void writeTexts(const fs::path& folder)
{
    const std::string data = OVISTO_DATA_FOLDER;
    writeText(folder, 0, "dictionary", R"(<JPEG label="File" vis="0" prot="2" help="All">
<Exif id="FFE1" label="Exif" vis="0" prot="0" help=""><IFD id="010F" label="Make" d="2" vis="0" prot="0" help=""/>
<IFD id="8769" label="Offset" d="4" vis="2" prot="1" help=""/><IFDE label="Camera" vis="0" prot="0" help="">
<IFD id="9003" label="Date" d="2" vis="1" prot="0" help=""/><MAKE label="Note" d="7" vis="1" prot="1" help=""/>
</IFDE></Exif></JPEG>)");
    for (const char* style : {"csv.xsl", "list.xsl", "statistics.xsl", "table.xsl"})
        writeText(folder, 1, style, readTextFile(data + "reports/" + style));
    writeText(folder, 1, "style", R"~(<!DOCTYPE x [<!ENTITY e "text"><!ENTITY f SYSTEM "a.txt">]>
<xsl:stylesheet version="1.0" xmlns:xsl="http://www.w3.org/1999/XSL/Transform"><xsl:variable name="v" select="//IFD"/>
<xsl:template match="/">&e;<xsl:for-each select="$v[@id='010F']"><xsl:sort select="@id"/><xsl:value-of select="."/>
<xsl:copy-of select="document('a.xml')"/></xsl:for-each><xsl:call-template name="t"/></xsl:template>
<xsl:template name="t"><xsl:param name="n" select="1"/></xsl:template></xsl:stylesheet>)~");
    int number = 0;
    for (const Bytes& photograph : photographs())
        writeText(folder, 2, "document" + std::to_string(number++), documentText(fileWith(photograph, "a.jpg")));
    writeText(folder, 2, "entities", "<!DOCTYPE JPEG [<!ENTITY a 'x'><!ENTITY b '&a;&a;'>]><JPEG>&b;</JPEG>");
    writeText(folder, 3, "keywords", "\xEF\xBB\xBFsea\r\nM\xC3\xBCnchen\r\n\r\nM\xFCnchen\r\n");
    writeText(folder, 4, "list", "\xEF\xBB\xBF/a b.jpg\r\n\n~a.jpg\n");
    writeText(folder, 4, "list-0", std::string_view("a.jpg\0b.jpg", 11));
    writeText(folder, 5, "words", "\x01*.jpg;?a*.jpeg\nAcme, \xC3\xA9t\xC3\xA9");
    writeText(folder, 5, "expression", "\x04*\n(?i)\\bac(m|n)e{1,3}[a-z\xC3\xA9]*$|^(a+)+b");
}

} // namespace

void writeSeeds(const std::string& folder)
{
    writePhotographs(folder);
    writeTexts(folder);
}

} // namespace ovisto::fuzz
