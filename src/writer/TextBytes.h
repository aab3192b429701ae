// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace ovisto {

// Texts of full documents as bytes of a file. Each function returns bytes that read back as the text, and raises an
// error where there are none.

/// What the text of a value depends on, besides its bytes.
struct TextPlace {
    int tag = 0;
    int fieldType = 0; ///< TIFF field type
    bool littleEndian = false;
};

/// The bytes of a new value with all that belongs to it: a character code, a terminator.
std::vector<std::uint8_t> newTextBytes(const TextPlace& place, const std::string& text);

/// What `old`, the bytes of a value that is text, become when its text is changed to `text`: a narrow text stays in its
/// encoding where that has all characters, and else becomes UTF-8; a text of Windows becomes UTF-16 with the least
/// significant byte first; a user comment becomes ASCII or, where that does not do, UTF-16 in the order of the block.
/// In a text that keeps its encoding, the unchanged beginning and end keep their bytes.
std::vector<std::uint8_t> changedTextBytes(const TextPlace& place, std::span<const std::uint8_t> old,
                                           const std::string& text);

/// The same for the payload of an APP1 segment that is not Exif; `old` is empty for a new one.
std::vector<std::uint8_t> changedPayload(std::span<const std::uint8_t> old, const std::string& text);

} // namespace ovisto
