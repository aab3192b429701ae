// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

namespace ovisto {

/// The version of Ovisto.
const char* programVersion();

/// A library that the program is made of, and its version.
struct Library {
    std::string name;
    std::string version;
};

/// The libraries that the engine is linked with or compiled from. The version is that of the library that is loaded
/// where it says so, else that of its headers.
std::vector<Library> engineLibraries();

} // namespace ovisto
