// SPDX-License-Identifier: MIT

#pragma once

#include "ui/App/Settings.h"

#include <QString>
#include <QStringList>

namespace ovisto {

/// The folders that were searched last, newest first. A folder that is gone is left out: it may come back with its
/// disk.
QStringList recentFolders(const Settings& settings);

/// Makes `folder` the newest; the oldest one goes when there are too many.
void rememberFolder(const QString& folder, Settings& settings);
void forgetFolders(Settings& settings);

/// Whether any is remembered, one that is gone too.
bool wasFolderRemembered(const Settings& settings);

/// Whether a folder to search was chosen before, in this run or an earlier one.
bool wasFolderChosen(const Settings& settings);

/// Where a person's photographs are likely to be, before any folder was chosen: the pictures folder of the desktop, or
/// the home folder if there is none.
QString firstFolder();

} // namespace ovisto
