// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

namespace ovisto {

/// The folder part of `path` as the system sees it, with the separator at its end; empty without one. What a person is
/// shown is split by splitPath().
std::string folderOf(std::string_view path);

/// How many temporary names a file has.
inline constexpr int kTemporaryNames = 99;

/// The temporary name number `number` (1 to kTemporaryNames) of the file `path`, under which a new version of it may be
/// written: in the same folder, with "~", "~2", "~3" and so on before its name. If that is longer than the system
/// allows, the part before the extension is shortened by whole UTF-8 characters.
std::string temporaryName(std::string_view path, int number = 1);

/// Whether `path` is a temporary name of the file `original`.
bool isTemporaryName(std::string_view path, std::string_view original);

} // namespace ovisto
