#pragma once

#include "ui/App/Settings.h"

#include <QList>
#include <QRect>
#include <QString>

#include <optional>

class QSplitter;
class QWidget;

namespace ovisto {

/// Moves the window to where the setting `key` says: left, top, width and height in twips, 15 a logical pixel, joined
/// by ",". `whenMissing` stands in for a setting that is missing or makes no sense. The window ends up on a screen.
void PlacementLoad(QWidget& window, const Settings& settings, const QString& key, const QString& whenMissing);

/// Writes the place and size of the window, as it is when it fills no screen, under `key`.
void PlacementSave(const QWidget& window, Settings& settings, const QString& key);

/// The place, in pixels, that a text in twips names; none when it names none.
std::optional<QRect> placement(const QString& text);

/// `place` made no larger than the screen that shows most of it, the first one when none does, and moved into it.
QRect movedOnto(const QList<QRect>& screens, const QRect& place);

/// The sizes of the parts of a splitter, kept under its object name, joined by ",". `whenMissing` stands in for a
/// setting that is missing or makes no sense.
void splitterLoad(QSplitter& splitter, const Settings& settings, const QString& whenMissing);
void splitterSave(const QSplitter& splitter, Settings& settings);

} // namespace ovisto
