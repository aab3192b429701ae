// SPDX-License-Identifier: MIT

#include "ui/App/ScanSettings.h"

#include "ui/App/Text.h"

namespace ovisto {

ScanSettings loadScanSettings(const Settings& settings, const QString& folder)
{
    ScanSettings scan;
    scan.FolderNameSelected = settings.GetSetting(QStringLiteral("Folder"), folder);
    scan.FilePattern = QStringLiteral("*.jpg;*.jpeg");
    scan.SearchWords = settings.GetSetting(QStringLiteral("SearchWords"), {});
    scan.SubFolderScan = settings.choice(QStringLiteral("SubFolderScan"), true);
    scan.SearchAllWords = settings.choice(QStringLiteral("SearchAllWords"), false);
    scan.SearchWordsWhole = settings.choice(QStringLiteral("SearchWordsWhole"), false);
    scan.SearchRegExp = settings.choice(QStringLiteral("SearchRegExp"), false);
    scan.searchValues = settings.choice(QStringLiteral("SearchValues"), false);
    return scan;
}

void saveScanSettings(const ScanSettings& scan, Settings& settings)
{
    settings.SaveSetting(QStringLiteral("Folder"), scan.FolderNameSelected);
    settings.SaveSetting(QStringLiteral("SearchWords"), scan.SearchWords);
    settings.saveChoice(QStringLiteral("SubFolderScan"), scan.SubFolderScan);
    // "SearchAllWords" twice and "SearchWordsWhole" never: looking for whole words lasts for one run, and every run
    // begins without.
    settings.saveChoice(QStringLiteral("SearchAllWords"), scan.SearchAllWords);
    settings.saveChoice(QStringLiteral("SearchAllWords"), scan.SearchAllWords);
    settings.saveChoice(QStringLiteral("SearchRegExp"), scan.SearchRegExp);
    settings.saveChoice(QStringLiteral("SearchValues"), scan.searchValues);
}

ScanOptions scanOptions(const ScanSettings& scan, const ValueTexts& values)
{
    return {.folder = toPath(scan.FolderNameSelected),
            .patterns = scan.FilePattern.toStdString(),
            .subFolders = scan.SubFolderScan,
            .append = scan.ListAppend,
            .content = {.words = scan.SearchWords.toStdString(),
                        .allWords = scan.SearchAllWords,
                        .wholeWords = scan.SearchWordsWhole,
                        .regExp = scan.SearchRegExp,
                        .values = scan.searchValues ? values : ValueTexts()}};
}

} // namespace ovisto
