// SPDX-License-Identifier: MIT

#pragma once

#include "common/Error.h"
#include "common/system/File.h"

#include <cstddef>

namespace ovisto {

/// What tells whether a JPEG file is still the one that its document was read from.
struct FileIdentity {
    FileStatus status;
    std::size_t digest = 0; ///< of all bytes before the image data; if the status is recent, of the whole file
};

/// The identity of an open file. Ask for it before its content is read: what changes in between is then noticed.
FileIdentity identityOf(const InputFile& file);

/// Whether `now` is the file of that identity, with the content that it had. Other permissions, names and places on the
/// disk make no difference.
bool isSameFile(const FileIdentity& asRead, const InputFile& now);

/// What is raised when it is not.
Error fileWasChanged();
bool isFileWasChanged(const Error& error);

} // namespace ovisto
