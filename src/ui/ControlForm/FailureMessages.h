// SPDX-License-Identifier: MIT

#pragma once

#include "collection/Report.h"

#include <QString>

#include <string>
#include <vector>

namespace ovisto {

// Messages about many failed files or folders: the first ones, each with its reason, and the number of the others.

/// Which files are missing from a report.
QString leftOutMessage(const std::vector<FileFailure>& leftOut);

/// Which folders a scan could not read, besides the first.
QString notReadMessage(const std::vector<FileFailure>& notRead);

/// Which names are those of no file and no folder.
QString missingMessage(const std::vector<std::string>& missing);

} // namespace ovisto
