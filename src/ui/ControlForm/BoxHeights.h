// SPDX-License-Identifier: MIT

#pragma once

#include "ui_ControlForm.h"

namespace ovisto {

/// Lets the text boxes grow to some lines only, so that the picture and the property tree get the rest of a large
/// window. Goes by the boxes' fonts as they are now.
void limitBoxHeights(const Ui::ControlForm& ui);

} // namespace ovisto
