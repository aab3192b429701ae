// SPDX-License-Identifier: MIT

#pragma once

#include "ui/App/Settings.h"

#include <QMenu>
#include <QObject>

namespace ovisto {

/// Fills a menu with the recent folders whenever it opens, and an item that forgets them.
class RecentMenu : public QObject {
    Q_OBJECT

public:
    /// Belongs to `menu`. `settings` must outlive it.
    RecentMenu(QMenu& menu, Settings& settings);

Q_SIGNALS:
    void chosen(const QString& folder);

private:
    void fill();

    QMenu& m_menu;
    Settings& m_settings;
};

} // namespace ovisto
