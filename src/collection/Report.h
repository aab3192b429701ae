#pragma once

#include "common/ErrorReport.h"
#include "common/Progress.h"
#include "reader/JpegXml.h"

#include <string>
#include <string_view>
#include <vector>

namespace ovisto {

/// A file of a list that was left out, and why.
struct FileFailure {
    std::string path;
    Error error;
};

/// Writes the documents of the JPEG files, one after the other and as the reader made them, as one document with the
/// root element JPEGs to the file `combined`, in UTF-16. One document at a time is in memory. When `progress` stops,
/// the files before it are in it. What the reader could not translate in full, or is not well-formed, is left out and
/// returned. Raises the error that kept `combined` from being written.
std::vector<FileFailure> combineDocuments(const std::vector<std::string>& files, const KeepOptions& keep,
                                          const std::string& combined, Progress& progress);

/// What a report is made with.
struct ReportOptions {
    std::string styleSheet;
    std::string folder; ///< for "Report.xml", the combined documents, and the report; with a separator at its end
    KeepOptions keep;
};

/// A report as it was made.
struct ReportResult {
    std::string path; ///< empty when it could not be written
    std::vector<FileFailure> leftOut;
};

/// Makes a report on the files by a style sheet. Its name is "Report." and an extension that its text decides; it and
/// "Report.xml" replace those of the last time. Errors are reported, each in the context of what was done.
ReportResult makeReport(const std::vector<std::string>& files, const ReportOptions& options, Progress& progress,
                        ErrorReporter& reporter);

/// The extension of a report: what follows the "<" that it begins with, three characters ("htm", in the letter case of
/// the tag), or "txt". `report` is UTF-16 with a byte-order mark.
std::string reportExtension(std::string_view report);

} // namespace ovisto
