// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>

#include <string>

namespace ovisto {

/// The icon of the program, in all its sizes: with the data in `dataFolder`, or installed beside it as the desktop's.
QIcon programIcon(const std::string& dataFolder);

} // namespace ovisto
