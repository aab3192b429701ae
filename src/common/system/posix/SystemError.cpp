// SPDX-License-Identifier: MIT

#include "common/system/posix/SystemError.h"

namespace ovisto {

Error errorOf(int errorNumber)
{
    switch (errorNumber) {
    case ENOENT:
        return systemError(kFileNotFound);
    case ENOTDIR:
        return systemError(kPathNotFound);
    case EISDIR:
        return {kPathAccessError, Message::IsAFolder};
    case EACCES:
    case EPERM:
    case EROFS:
    case EBUSY:
    case ETXTBSY:
        return systemError(kPermissionDenied);
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return systemError(kDiskFull);
    case EIO:
        return systemError(kDeviceError);
    case ENOMEM:
        return systemError(kOutOfMemory);
    default:
        return systemError(kPathAccessError);
    }
}

} // namespace ovisto
