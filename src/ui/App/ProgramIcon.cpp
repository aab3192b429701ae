// SPDX-License-Identifier: MIT

#include "ui/App/ProgramIcon.h"

#include "ui/App/Text.h"

namespace ovisto {

QIcon programIcon(const std::string& dataFolder)
{
    QIcon icon;
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256, 512})
        icon.addFile(pathText(dataFolder) + QStringLiteral("icons/ovisto-%1.png").arg(size), {size, size});
    return icon;
}

} // namespace ovisto
