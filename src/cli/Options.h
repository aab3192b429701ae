#pragma once

#include "document/TagDictionary.h"
#include "reader/JpegXml.h"

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace ovisto {

// Options that several commands take.

/// What every command takes: its files, and how to work on them.
struct FileOptions {
    std::vector<std::string> files; ///< those named on the command line
    std::string filesFrom;          ///< a file with more of them, "-" for standard input; empty for none
    bool zeroSeparated = false;     ///< the names in it, and those written, end with zero bytes, not line ends
    std::string dictionary;         ///< empty for the program's own
    unsigned jobs = 1;
};

/// Declares FILE, one at least, and what addFileList() declares.
void addFiles(CLI::App& parser, FileOptions& options);
/// Declares all but FILE.
void addFileList(CLI::App& parser, FileOptions& options);
/// Raises the parser's error unless files, or a list of them, are given.
void requireFiles(const FileOptions& options);

void addKeepOptions(CLI::App& parser, KeepOptions& keep);

/// The files named on the command line, then those of the list. Raises an error that names what cannot be read.
std::vector<std::string> fileNames(const FileOptions& options);

/// `files` without those that are, by another name or the same, already among those before them: no file is to be
/// written twice at the same time.
std::vector<std::string> withoutRepeats(std::vector<std::string> files);

/// The tag dictionary, the program's own unless another one is given.
TagDictionary loadDictionary(const FileOptions& options);

} // namespace ovisto
