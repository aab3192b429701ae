#pragma once

#include "ui/App/Settings.h"

#include <QString>

#include <cstdint>

namespace ovisto {

/// How a slide show is to run.
struct SlideShowOptions {
    bool fullscreen = true;
    bool resize = true;
    bool details = true;
    QString seconds; ///< as it was typed
};

SlideShowOptions loadSlideShowOptions(const Settings& settings);
void saveSlideShowOptions(const SlideShowOptions& options, Settings& settings);

/// The seconds as a whole number, halves to the even one. Raises kTypeMismatch when the text is no number, kOverflow
/// when it needs more than 16 bits.
std::int16_t wholeSeconds(const QString& text);

} // namespace ovisto
