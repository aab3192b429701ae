// SPDX-License-Identifier: MIT

#pragma once

#include "common/system/ProgramFolder.h"
#include "ui/App/Desktop.h"
#include "ui/App/Dialogs.h"
#include "ui/App/Settings.h"

namespace ovisto {

/// What the main window needs from outside. All of it must outlive the window.
struct Surroundings {
    Dialogs& dialogs;
    Desktop& desktop;
    Settings& settings;
    ProgramFolders folders;
};

} // namespace ovisto
