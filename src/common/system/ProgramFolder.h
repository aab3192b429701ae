#pragma once

#include <string>

namespace ovisto {

/// Where the program's own files are, each folder with a separator at its end.
struct ProgramFolders {
    std::string data;     ///< tag dictionary, keyword list, style sheets
    std::string writable; ///< reports, a keyword list of the user's own, the thumbnail shown
};

/// The folder of the program, for both, when it can be written to and holds the data files (a portable copy); else the
/// installed data folder and the user's data folder. The latter may not exist yet.
ProgramFolders ProgramFolder();

} // namespace ovisto
