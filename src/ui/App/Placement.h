// SPDX-License-Identifier: MIT

#pragma once

#include "ui/App/Settings.h"

#include <QList>
#include <QRect>
#include <QString>

#include <optional>

class QSplitter;
class QTreeView;
class QWidget;

namespace ovisto {

/// Moves the window to the place in the setting `key`: left, top, width and height in twips (15 per logical pixel),
/// separated by ","; a fifth number, 1, maximizes it. `whenMissing` replaces a missing or invalid setting. The window
/// always ends up on a screen, with its frame. To be called once.
void PlacementLoad(QWidget& window, const Settings& settings, const QString& key, const QString& whenMissing);

/// Stores the place and size of the window under `key`; for a maximized or full-screen window, its normal ones, and
/// that it is maximized.
void PlacementSave(const QWidget& window, Settings& settings, const QString& key);

/// Whether the window has another size than its normal one: maximized, minimized or full screen.
bool fillsScreen(const QWidget& window);

/// The place, in pixels, given by a text in twips; nothing if the text is invalid.
std::optional<QRect> placement(const QString& text);

/// `place` shrunk to fit, and moved into, the screen that shows most of it, or the first screen if none does.
QRect movedOnto(const QList<QRect>& screens, const QRect& place);

/// The sizes of the parts of a splitter, stored under its object name, separated by ",". `whenMissing` replaces a
/// missing or invalid setting.
void splitterLoad(QSplitter& splitter, const Settings& settings, const QString& whenMissing);
void splitterSave(const QSplitter& splitter, Settings& settings);

/// The widths of the columns of a tree but for the last, which gets the rest; in the same way.
void columnsLoad(QTreeView& tree, const Settings& settings, const QString& whenMissing);
void columnsSave(const QTreeView& tree, Settings& settings);

} // namespace ovisto
