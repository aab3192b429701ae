// SPDX-License-Identifier: MIT

#pragma once

#include "writer/DocumentChanges.h"
#include "writer/TiffBlock.h"

#include <cstdint>
#include <vector>

namespace ovisto {

// Changes are made to an Exif segment where they stand. All that was not changed keeps its bytes and, but for values
// that make room for a growing directory, its place; the byte order stays, and so do directories that no document
// shows. Of what was deleted, replaced or moved no byte stays, unless another value means it too.

/// Bytes of the TIFF structure that an Exif segment has room for: its length of 16 bits counts itself, and the
/// identifier stands before it.
inline constexpr std::int64_t kMostExifBytes = 65535 - 2 - 6;

/// What becomes of bytes that nothing leads to where there is no maker note: of all tags, only that may lead to bytes
/// that its entry does not name.
enum class Leftovers { Keep, Clear };

/// The TIFF structure that `old` becomes by the changes of `parts`. Raises an error that names the node and the reason
/// when one of them cannot be made; whatever was not changed is never a reason.
std::vector<std::uint8_t> patchedExif(const TiffBlock& old, const std::vector<PartChange>& parts,
                                      Leftovers leftovers = Leftovers::Keep);

} // namespace ovisto
