// SPDX-License-Identifier: MIT

#include "common/Error.h"

#include <algorithm>
#include <iterator>
#include <new>
#include <stdexcept>
#include <system_error>

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

Error handledException()
{
    try {
        throw;
    } catch (const std::bad_alloc&) {
        return systemError(kOutOfMemory);
    } catch (const std::length_error&) { // of a text that could not be in memory
        return systemError(kOutOfMemory);
    } catch (const std::system_error&) {
        return systemError(kOutOfMemory);
    } catch (...) {
        return systemError(kInternalError);
    }
}

bool isOfSystem(const Error& error)
{
    constexpr int kNumbers[] = {kOutOfMemory,      kFileNotFound,    kDeviceError, kDiskFull,
                                kPermissionDenied, kPathAccessError, kPathNotFound};
    return std::ranges::find(kNumbers, error.number) != std::end(kNumbers);
}

} // namespace ovisto
