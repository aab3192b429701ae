// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace ovisto::fuzz {

/// Writes what fuzzing starts from: a folder for each function in Targets.h. The photographs are those of the tests,
/// each with several edits; the texts are the program's own and some that a person could hand to it.
void writeSeeds(const std::string& folder);

} // namespace ovisto::fuzz
