// SPDX-License-Identifier: MIT

#pragma once

#include "common/ErrorReport.h"
#include "document/TagDictionary.h"
#include "ui/App/Surroundings.h"
#include "ui/ControlForm/EditedBoxes.h"
#include "ui_ControlForm.h"

#include <QMainWindow>

namespace ovisto {

/// What the panes of the main window share. All of it outlives them.
struct WindowParts {
    QMainWindow& window;
    Ui::ControlForm& ui; ///< all controls; each pane handles those named in its class comment
    const Surroundings& surroundings;
    const TagDictionary& Merovel;
    ErrorReporter& reporter;
    EditedBoxes& boxes;
    bool& ControlsUpdating; ///< the program itself is filling controls; their handlers do nothing
};

} // namespace ovisto
