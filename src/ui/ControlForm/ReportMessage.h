#pragma once

#include "collection/Report.h"

#include <QString>

#include <vector>

namespace ovisto {

/// Tells a person which files are missing from a report, and why: the first ones, and how many others.
QString leftOutMessage(const std::vector<FileFailure>& leftOut);

} // namespace ovisto
