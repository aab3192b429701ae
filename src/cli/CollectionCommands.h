#pragma once

#include "cli/CommandLine.h"
#include "document/TagDictionary.h"

#include <string>
#include <vector>

namespace ovisto {

// The commands that work on many files as one collection. Each returns the exit status.

/// set, delete, add.
int runChange(const CommandLine& line, const std::vector<std::string>& files, const TagDictionary& dictionary);

int runFind(const CommandLine& line);

int runReport(const CommandLine& line, const std::vector<std::string>& files);

} // namespace ovisto
