// SPDX-License-Identifier: MIT

#include "ui/App/RecentMenu.h"

#include "ui/App/RecentFolders.h"
#include "ui/App/Text.h"

#include <QDir>

namespace ovisto {

namespace {

/// The text of the item in a place, which counts from 1: the digit to press, and the folder.
QString itemText(int place, const QString& folder, const QMenu& menu)
{
    constexpr int kWidest = 60; // characters
    QString text = menu.fontMetrics().elidedText(shownPath(toPath(QDir::toNativeSeparators(folder))), Qt::ElideMiddle,
                                                 kWidest * menu.fontMetrics().averageCharWidth());
    text.replace(u'&', QStringLiteral("&&"));
    return QStringLiteral("&%1  %2").arg(place % 10).arg(text);
}

} // namespace

RecentMenu::RecentMenu(QMenu& menu, Settings& settings) : QObject(&menu), m_menu(menu), m_settings(settings)
{
    menu.setToolTipsVisible(true);
    connect(&menu, &QMenu::aboutToShow, this, &RecentMenu::fill);
}

void RecentMenu::fill()
{
    m_menu.clear();
    const QStringList folders = recentFolders(m_settings);
    int place = 0;
    for (const QString& folder : folders) {
        QAction* item = m_menu.addAction(itemText(++place, folder, m_menu));
        item->setToolTip(QStringLiteral("<p>%1</p>").arg(QDir::toNativeSeparators(folder).toHtmlEscaped()));
        connect(item, &QAction::triggered, this, [this, folder] { Q_EMIT chosen(folder); });
    }
    if (folders.isEmpty())
        m_menu.addAction(tr("No folder was searched yet"))->setEnabled(false);
    m_menu.addSeparator();
    QAction* clear = m_menu.addAction(tr("&Clear This List"));
    clear->setEnabled(wasFolderRemembered(m_settings));
    connect(clear, &QAction::triggered, this, [this] { forgetFolders(m_settings); });
}

} // namespace ovisto
