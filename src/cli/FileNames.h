#pragma once

#include "cli/CommandLine.h"

#include <string>
#include <vector>

namespace ovisto {

/// The files of the command line, then those that --files-from names. Raises an error that names what cannot be read.
std::vector<std::string> fileNames(const CommandLine& line);

/// `files` without those that are, by another name or the same, already among those before them: no file is to be
/// written twice at the same time.
std::vector<std::string> withoutRepeats(std::vector<std::string> files);

} // namespace ovisto
