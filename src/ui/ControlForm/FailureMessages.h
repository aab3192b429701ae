#pragma once

#include "collection/Report.h"

#include <QString>

#include <vector>

namespace ovisto {

// Messages about many files, or folders, that failed: the first ones, each with its reason, and how many others.

/// Tells a person which files are missing from a report.
QString leftOutMessage(const std::vector<FileFailure>& leftOut);

/// Tells a person which files a batch could not change, besides the one that it ended with.
QString notChangedMessage(const std::vector<FileFailure>& notChanged);

/// Tells a person which folders a scan could not read, besides the first.
QString notReadMessage(const std::vector<FileFailure>& notRead);

} // namespace ovisto
