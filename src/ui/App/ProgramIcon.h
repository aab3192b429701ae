// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>

#include <string>

namespace ovisto {

/// The icon of the program, in all its sizes, from the folder of its data.
QIcon programIcon(const std::string& dataFolder);

} // namespace ovisto
