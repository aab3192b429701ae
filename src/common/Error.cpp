#include "common/Error.h"

#include <algorithm>
#include <iterator>

namespace ovisto {

namespace {

struct SystemError {
    int number;
    Message reason;
};

constexpr SystemError kSystemErrors[] = {
    {kInvalidCall, Message::InvalidCall},
    {kOverflow, Message::Overflow},
    {kOutOfMemory, Message::OutOfMemory},
    {kTypeMismatch, Message::TypeMismatch},
    {kFileNotFound, Message::FileNotFound},
    {kDeviceError, Message::DeviceError},
    {kDiskFull, Message::DiskFull},
    {kPermissionDenied, Message::PermissionDenied},
    {kPathAccessError, Message::PathAccessError},
    {kPathNotFound, Message::PathNotFound},
    {kObjectNotSet, Message::ObjectNotSet},
};

} // namespace

Error systemError(int number)
{
    const auto* row = std::ranges::find(kSystemErrors, number, &SystemError::number);
    return {number, row != std::end(kSystemErrors) ? row->reason : Message::UnexpectedError};
}

bool isOfSystem(const Error& error)
{
    constexpr int kNumbers[] = {kOutOfMemory,      kFileNotFound,    kDeviceError, kDiskFull,
                                kPermissionDenied, kPathAccessError, kPathNotFound};
    return std::ranges::find(kNumbers, error.number) != std::end(kNumbers);
}

} // namespace ovisto
