// SPDX-License-Identifier: MIT

#include "ui/App/RecentFolders.h"

#include <QDir>
#include <QStandardPaths>

#include <algorithm>

namespace ovisto {

namespace {

constexpr int kMost = 10;

/// Each folder has a setting of its own, as its name may contain any character.
QString key(int place)
{
    return QStringLiteral("RecentFolder%1").arg(place);
}

QStringList allFolders(const Settings& settings)
{
    QStringList folders;
    for (int place = 0; place < kMost; ++place)
        folders << settings.GetSetting(key(place), {});
    folders.removeAll(QString());
    return folders;
}

} // namespace

QStringList recentFolders(const Settings& settings)
{
    QStringList folders = allFolders(settings);
    folders.removeIf([](const QString& folder) { return !QDir(folder).exists(); });
    return folders;
}

void rememberFolder(const QString& folder, Settings& settings)
{
    const QString clean = QDir::cleanPath(folder);
    QStringList folders = allFolders(settings);
    folders.removeAll(clean);
    folders.prepend(clean);
    const auto count = std::min<qsizetype>(folders.size(), kMost);
    for (int place = 0; place < count; ++place)
        settings.SaveSetting(key(place), folders[place]);
}

void forgetFolders(Settings& settings)
{
    for (int place = 0; place < kMost; ++place)
        settings.remove(key(place));
}

bool wasFolderRemembered(const Settings& settings)
{
    return !allFolders(settings).isEmpty();
}

bool wasFolderChosen(const Settings& settings)
{
    return wasFolderRemembered(settings) || !settings.GetSetting(QStringLiteral("Folder"), {}).isEmpty();
}

QString firstFolder()
{
    const QString pictures = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
    return QDir(pictures).exists() ? pictures : QDir::homePath();
}

} // namespace ovisto
