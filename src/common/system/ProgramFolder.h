// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace ovisto {

/// Where the program's own files are, each folder with a separator at its end.
struct ProgramFolders {
    std::string data;     ///< tag dictionary, keyword list, style sheets
    std::string writable; ///< reports, the user's own keyword list, the thumbnail shown
};

/// Both are the folder of the program if that is writable and holds the data files (a portable copy). Otherwise the
/// installed data folder and the user's data folder; the latter may not exist yet.
ProgramFolders ProgramFolder();

} // namespace ovisto
