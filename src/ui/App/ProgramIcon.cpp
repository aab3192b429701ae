// SPDX-License-Identifier: MIT

#include "ui/App/ProgramIcon.h"

#include "ui/App/Text.h"

#include <QFile>

namespace ovisto {

QIcon programIcon(const std::string& dataFolder)
{
    // A portable copy has the icons with its data; an installed program has them where desktops look for them.
    QString name = pathText(dataFolder) + QStringLiteral("icons/ovisto-%1.png");
    if (!QFile::exists(name.arg(16)))
        name = pathText(dataFolder) + QStringLiteral("../icons/hicolor/%1x%1/apps/org.castelmar.ovisto.png");
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256, 512})
        icon.addFile(name.arg(size), {size, size});
    return icon;
}

} // namespace ovisto
