// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace ovisto {

/// Where the program's own files are, each folder with a separator at its end.
struct ProgramFolders {
    std::string data;     ///< tag dictionary, keyword list, style sheets
    std::string writable; ///< reports, the user's own keyword list, the thumbnail shown
};

/// Both are the folder of the running program if that is writable and holds the data files (a portable copy). Otherwise
/// the data folder "../share/ovisto/" from there, or else the one that the library was configured to be installed with,
/// and the user's data folder; the latter may not exist yet. For a program of yours that links with a library in
/// another place, CMake's find_package(ovisto) sets ovisto_DATA_FOLDER.
ProgramFolders ProgramFolder();

} // namespace ovisto
