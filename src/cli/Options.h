// SPDX-License-Identifier: MIT

#pragma once

#include "document/TagDictionary.h"
#include "reader/JpegXml.h"
#include "writer/DocumentSave.h"

#include <string>
#include <string_view>
#include <vector>

namespace CLI {
class App;
}

namespace ovisto {

// Options that several commands take.

/// What a list of names, one a line, may begin with; it is no part of the first one.
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// What every command takes: files, and how to process them.
struct FileOptions {
    std::vector<std::string> files; ///< those named on the command line
    std::string filesFrom;          ///< a file with more of them, "-" for standard input; empty for none
    bool zeroSeparated = false;     ///< names in it, and those written, end with zero bytes instead of line ends
    std::string failedTo;           ///< a file for the names of those that were not done; empty for none
    std::string dictionary;         ///< empty for the program's own
    unsigned jobs = 1;
};

/// Declares FILE (at least one) and the options of addFileList().
void addFiles(CLI::App& parser, FileOptions& options);
/// Declares all but FILE.
void addFileList(CLI::App& parser, FileOptions& options);
/// What is wrong with the name of a file or folder on the command line; empty if nothing is.
std::string nameObjection(const std::string& name);
/// Raises the parser's error if neither files nor a list of them is given.
void requireFiles(const FileOptions& options);

/// How the commands that change photographs write them.
struct WritingOptions {
    bool rebuild = false;
    bool verbose = false;
    bool force = false;            ///< go on from a file that another program changed meanwhile
    Reading asked = Reading::Full; ///< without --rebuild

    WritingWay way() const { return rebuild ? WritingWay::Rebuild : WritingWay::Keep; }
    Reading reading() const { return rebuild ? Reading::Basic : asked; }
};

void addWritingOptions(CLI::App& parser, WritingOptions& options);

/// The lines for standard error about a saved file, if any: what was lost, and with --verbose what was changed.
std::string savedLines(const WritingOptions& options, const std::string& path, const SaveReceipt& receipt);

void addKeepOptions(CLI::App& parser, KeepOptions& keep);

/// Declares how files are read by a command that reads everything unless told otherwise: --basic.
void addBasicOption(CLI::App& parser, Reading& reading);
/// The same for one that reads basic documents: --full.
void addFullOption(CLI::App& parser, KeepOptions& keep);

/// The files named on the command line, then those of the list. Raises an error that names a list that cannot be read.
std::vector<std::string> fileNames(const FileOptions& options);

/// `files` without repeats, under the same or another name: no file may be written twice at the same time.
std::vector<std::string> withoutRepeats(std::vector<std::string> files);

/// The tag dictionary: the program's own unless another one is given.
TagDictionary loadDictionary(const FileOptions& options);

} // namespace ovisto
