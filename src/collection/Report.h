// SPDX-License-Identifier: MIT

#pragma once

#include "common/ErrorReport.h"
#include "common/Progress.h"
#include "common/system/File.h"
#include "common/xml/XmlTransform.h"
#include "document/ValueText.h"
#include "reader/JpegXml.h"

#include <string>
#include <string_view>
#include <vector>

namespace ovisto {

/// A file that was left out, and why.
struct FileFailure {
    std::string path;
    Error error;
};

/// Writes the documents of the JPEG files, as the reader made them, one after another into one document with the root
/// element JPEGs, in UTF-16, to the file `combined`. Only one document at a time is in memory. When `progress` stops
/// it, the files before are included. A file that the reader could not translate in full, or whose document is not
/// well-formed, is left out and returned. Raises an error if `combined` cannot be written.
std::vector<FileFailure> combineDocuments(const std::vector<std::string>& files, const KeepOptions& keep,
                                          OutputFile& combined, Progress& progress);

/// Transforms combined documents with a style sheet. Functions in the name space "urn:ovisto:values" give it texts for
/// people, in the language of `values`: text(NODE) what the value of a node means, words('Camera') its own headings,
/// and counted(NUMBER, '%n photograph', '%n photographs') those with a number.
Transformation transformDocuments(XmlDocument& documents, XmlDocument styleSheet, TextEncoding encoding,
                                  const ValueTexts& values);

/// How a report is made.
struct ReportOptions {
    std::string styleSheet;
    std::string folder; ///< for the report and "Report.xml", the combined documents; ends with a separator
    KeepOptions keep;
    ValueTexts values = {};
};

/// The result of making a report.
struct ReportResult {
    std::string path; ///< empty if it could not be written
    std::vector<FileFailure> leftOut;
};

/// Makes a report on the files with a style sheet. It is called "Report." plus the extension that its text decides; it
/// and "Report.xml" replace the previous ones. Errors are reported, each in the context of the failed operation.
ReportResult makeReport(const std::vector<std::string>& files, const ReportOptions& options, Progress& progress,
                        ErrorReporter& reporter);

/// The extension of a report: the three characters after the "<" that it begins with ("htm", in the case of the tag),
/// or "txt". `report` is UTF-16 with a byte-order mark.
std::string reportExtension(std::string_view report);

} // namespace ovisto
