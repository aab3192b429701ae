// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

namespace ovisto {

// The tags that the program treats specially (Exif 2.32, TIFF 6.0; the last two bound those of Windows).
inline constexpr std::uint16_t kCompression = 0x0103;
inline constexpr std::uint16_t kStripOffsets = 0x0111;
inline constexpr std::uint16_t kStripByteCounts = 0x0117;
inline constexpr std::uint16_t kThumbnailOffset = 0x0201;
inline constexpr std::uint16_t kThumbnailLength = 0x0202;
inline constexpr std::uint16_t kExifDirectory = 0x8769;
inline constexpr std::uint16_t kGpsVersion = 0x0000;          ///< in the GPS directory
inline constexpr std::uint16_t kGpsProcessingMethod = 0x001B; ///< in the GPS directory
inline constexpr std::uint16_t kGpsAreaInformation = 0x001C;  ///< in the GPS directory
inline constexpr std::uint16_t kGpsDirectory = 0x8825;
inline constexpr std::uint16_t kComponentsConfiguration = 0x9101;
inline constexpr std::uint16_t kMakerNote = 0x927C;
inline constexpr std::uint16_t kUserComment = 0x9286;
inline constexpr std::uint16_t kInteroperabilityDirectory = 0xA005;
inline constexpr std::uint16_t kFileSource = 0xA300;
inline constexpr std::uint16_t kSceneType = 0xA301;
inline constexpr std::uint16_t kCfaPattern = 0xA302;
inline constexpr std::uint16_t kTitle = 0x9C9B;
inline constexpr std::uint16_t kSubject = 0x9C9F;

/// Whether a value of type Undefined is always four bytes and always in the entry itself.
constexpr bool isFourByteTag(int tag)
{
    return tag == kComponentsConfiguration || tag == kFileSource || tag == kSceneType || tag == kCfaPattern;
}

/// Whether the tag is title, comments, author, keywords or subject: byte arrays that hold UCS-2 text.
constexpr bool isWindowsText(int tag)
{
    return tag >= kTitle && tag <= kSubject;
}

} // namespace ovisto
