#pragma once

#include "common/ErrorReport.h"
#include "document/TagDictionary.h"
#include "ui/App/Surroundings.h"
#include "ui/ControlForm/EditedBoxes.h"
#include "ui_ControlForm.h"

#include <QMainWindow>

namespace ovisto {

/// What the panes of the main window have in common. All of it outlives them.
struct WindowParts {
    QMainWindow& window;
    Ui::ControlForm& ui; ///< all controls; each pane works those that its class names
    const Surroundings& surroundings;
    const TagDictionary& Merovel;
    ErrorReporter& reporter;
    EditedBoxes& boxes;
    bool& ControlsUpdating; ///< the program itself fills controls, and their handlers stay silent
};

} // namespace ovisto
