#include "common/Error.h"

#include <algorithm>
#include <iterator>

namespace ovisto {

namespace {

struct SystemErrorText {
    int number;
    const char* description;
};

constexpr SystemErrorText kSystemErrors[] = {
    {kInvalidCall, "Invalid procedure call or argument"},
    {kOverflow, "Overflow"},
    {kOutOfMemory, "Out of memory"},
    {kTypeMismatch, "Type mismatch"},
    {kFileNotFound, "File not found"},
    {kDeviceError, "Device I/O error"},
    {kDiskFull, "Disk full"},
    {kPermissionDenied, "Permission denied"},
    {kPathAccessError, "Path/File access error"},
    {kPathNotFound, "Path not found"},
    {kObjectNotSet, "Object not set"},
};

} // namespace

Error systemError(int number)
{
    const auto* row = std::ranges::find(kSystemErrors, number, &SystemErrorText::number);
    return {number, row != std::end(kSystemErrors) ? row->description : "Unexpected error"};
}

} // namespace ovisto
