// SPDX-License-Identifier: MIT

#pragma once

#include "ui/App/Settings.h"

#include <QString>

#include <cstdint>

namespace ovisto {

/// The options of a slide show.
struct SlideShowOptions {
    bool fullscreen = true;
    bool resize = true;
    bool details = true;
    QString seconds; ///< as typed
};

SlideShowOptions loadSlideShowOptions(const Settings& settings);
void saveSlideShowOptions(const SlideShowOptions& options, Settings& settings);

/// The seconds as a whole number; halves go to the even one. Raises kTypeMismatch if the text is not a number,
/// kOverflow if it does not fit into 16 bits.
std::int16_t wholeSeconds(const QString& text);

} // namespace ovisto
