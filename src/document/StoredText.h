// SPDX-License-Identifier: MIT

#pragma once

#include "common/text/CharacterEncoding.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace ovisto {

// What a full document takes for text: where it stands in the bytes of a value, and in which encoding. The reader shows
// just this stretch; the writer changes just this stretch.

/// The bytes in front of a user comment that name its encoding (Exif 3.0, 4.6.5).
inline constexpr std::size_t kCharacterCodeSize = 8;
using CharacterCode = std::array<std::uint8_t, kCharacterCodeSize>;
inline constexpr CharacterCode kAsciiCode = {'A', 'S', 'C', 'I', 'I', 0, 0, 0};
inline constexpr CharacterCode kUnicodeCode = {'U', 'N', 'I', 'C', 'O', 'D', 'E', 0};

/// A text in the bytes of a value.
struct StoredText {
    CharacterEncoding encoding = CharacterEncoding::CodePage;
    std::size_t first = 0; ///< its first byte, after a character code and a byte order mark
    std::size_t size = 0;  ///< in bytes, without what ends or pads it
    bool hasCode = false;  ///< whether a character code stands before it
};

/// Whether a new value of the tag begins with a character code.
bool hasCharacterCode(int tag);

/// The text in `bytes`, the value of an entry with this tag and TIFF field type in a block of the byte order that
/// `littleEndian` says; none where it is no text.
std::optional<StoredText> storedText(int tag, int fieldType, std::span<const std::uint8_t> bytes, bool littleEndian);

/// The text in the payload of an APP1 segment that is not Exif, or of its identifier: all of `bytes`.
StoredText storedPayload(std::span<const std::uint8_t> bytes);

/// The bytes of `text`.
std::span<const std::uint8_t> bytesOf(const StoredText& text, std::span<const std::uint8_t> value);

/// What a document shows of it.
std::string shownText(const StoredText& text, std::span<const std::uint8_t> value);

} // namespace ovisto
