// SPDX-License-Identifier: MIT

#pragma once

#include "collection/FolderScan.h"
#include "ui/App/Settings.h"

#include <QString>

namespace ovisto {

/// Which files to look for, and where.
struct ScanSettings {
    QString FolderNameSelected;
    bool SubFolderScan = true;
    bool ListAppend = false; ///< add to the list instead of clearing it first
    QString FilePattern;     ///< names separated by ";"
    QString SearchWords;     ///< separated by ",", or one regular expression
    bool SearchAllWords = false;
    bool SearchWordsWhole = false;
    bool SearchRegExp = false;
    bool searchValues = false; ///< search the texts of values, too, as the property tree shows them

    bool operator==(const ScanSettings&) const = default;
};

/// Loads the settings; `folder` is the default on a first run. ListAppend, FilePattern and SearchWordsWhole are not
/// stored.
ScanSettings loadScanSettings(const Settings& settings, const QString& folder);

void saveScanSettings(const ScanSettings& scan, Settings& settings);

/// The scan that finds these files. `values` gives the texts of values.
ScanOptions scanOptions(const ScanSettings& scan, const ValueTexts& values);

} // namespace ovisto
