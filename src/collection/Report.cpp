// SPDX-License-Identifier: MIT

#include "collection/Report.h"

#include "collection/DocumentLoad.h"
#include "common/system/File.h"
#include "common/text/PathText.h"
#include "common/text/Unicode.h"
#include "common/xml/XmlLoad.h"
#include "document/MetadataDocument.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace ovisto {

namespace {

constexpr std::string_view kByteOrderMark = "\xFF\xFE";

void write(OutputFile& file, std::string_view bytes)
{
    file.write({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()});
}

/// The document of a file as the reader makes it. A well-formed text of the combined file can only be made of
/// well-formed ones, so that one which is not would take all others with it.
std::string wellFormedText(const std::string& path, const KeepOptions& keep)
{
    std::string text = documentText(path, keep);
    // The reader escapes everything but what stands in a CDATA section.
    if (text.find("<![CDATA[") != std::string::npos)
        documentOf(text);
    return text;
}

/// An extension comes from a style sheet: it must not lead to another folder, nor to a name that other systems refuse.
void checkExtension(const std::string& extension)
{
    const bool isName = std::ranges::none_of(extension, [](char character) {
        return static_cast<unsigned char>(character) < 32 ||
               std::string_view("\\/:*?\"<>|").find(character) != std::string_view::npos;
    });
    if (!isName)
        throw systemError(kPathAccessError);
}

/// Writes the report itself. Returns its path, empty when it could not be written.
std::string writeReport(const std::string& report, const std::string& folder, ErrorReporter& reporter)
{
    const std::string extension = reportExtension(report);
    const std::string path = folder + "Report." + extension;
    std::optional<OutputFile> file;
    const bool created = attempt(reporter, Phrase(Message::CreateFile, path), [&] {
        checkExtension(extension);
        file.emplace(path, NewFileAccess::Usual);
    });
    const bool written = created && attempt(reporter, Phrase(Message::WriteFile, path), [&] {
                             write(*file, report);
                             file->flush();
                         });
    return written ? path : std::string();
}

/// A number of things that a style sheet has counted.
std::int64_t wholeCount(const std::string& number)
{
    std::int64_t count = 0;
    std::from_chars(number.data(), number.data() + number.size(), count);
    return count;
}

} // namespace

std::vector<FileFailure> combineDocuments(const std::vector<std::string>& files, const KeepOptions& keep,
                                          OutputFile& combined, Progress& progress)
{
    std::vector<FileFailure> leftOut;
    write(combined, kByteOrderMark);
    write(combined, utf16Bytes("<JPEGs>"));
    for (std::size_t i = 0; i < files.size(); ++i) {
        if (!progress.step(files[i], i, files.size()))
            break;
        std::string text;
        ErrorTrap trap;
        trap.run([&] { text = wellFormedText(files[i], keep); });
        if (trap.pending())
            leftOut.push_back({files[i], trap.take()});
        else
            write(combined, utf16Bytes(text));
    }
    write(combined, utf16Bytes("</JPEGs>"));
    combined.flush();
    return leftOut;
}

Transformation transformDocuments(XmlDocument& documents, XmlDocument styleSheet, TextEncoding encoding,
                                  const ValueTexts& values)
{
    const std::string nameSpace = "urn:ovisto:values";
    using Arguments = std::vector<SheetArgument>;
    const SheetFunction text{nameSpace, "text", 1, [&](const Arguments& arguments) {
                                 const SheetArgument& value = arguments.front();
                                 return value.element ? values.of(value.element) : value.string;
                             }};
    const SheetFunction words{nameSpace, "words", 1, [&](const Arguments& arguments) {
                                  return values.words->reportWords(arguments.front().text());
                              }};
    const SheetFunction counted{nameSpace, "counted", 3, [&](const Arguments& arguments) {
                                    return values.words->reportCount(wholeCount(arguments[0].text()),
                                                                     arguments[1].text(), arguments[2].text());
                                }};
    return transformNode(documents, std::move(styleSheet), encoding, {text, words, counted});
}

ReportResult makeReport(const std::vector<std::string>& files, const ReportOptions& options, Progress& progress,
                        ErrorReporter& reporter)
{
    ReportResult result;
    XmlDocument style;
    XmlDocument document;
    if (!attempt(reporter, options.styleSheet, [&] { loadStyleSheet(style, options.styleSheet, FileKind::Regular); }))
        return result;
    // The documents of the last time must not be reported on as if they were these.
    const std::string combined = options.folder + "Report.xml";
    if (!attempt(reporter, combined, [&] {
            createFolders(options.folder);
            OutputFile file(combined, NewFileAccess::Usual);
            result.leftOut = combineDocuments(files, options.keep, file, progress);
            progress.endOfFiles();
            XMLLoad(document, combined);
        }))
        return result;
    const Transformation report = transformDocuments(document, std::move(style), TextEncoding::Utf16, options.values);
    // What a style sheet made before it failed is worth a look.
    if (report.error)
        ErrorReport(reporter, Message::TransformXml, *report.error);
    result.path = writeReport(report.bytes, options.folder, reporter);
    return result;
}

std::string reportExtension(std::string_view report)
{
    constexpr std::size_t kLength = 3;
    if (report.starts_with(kByteOrderMark))
        report.remove_prefix(kByteOrderMark.size());
    const auto unit = [&](std::size_t index) {
        return static_cast<char32_t>(static_cast<std::uint8_t>(report[2 * index]) |
                                     static_cast<std::uint8_t>(report[2 * index + 1]) << 8);
    };
    const std::size_t length = report.size() / 2;
    if (length == 0 || unit(0) != U'<')
        return "txt";
    std::string extension;
    for (std::size_t i = 1; i < std::min(length, 1 + kLength); ++i)
        appendCharacter(extension, unit(i));
    return extension;
}

} // namespace ovisto
