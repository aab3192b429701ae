// SPDX-License-Identifier: MIT

#pragma once

namespace ovisto {

// The paths of the nodes that the program looks for by name, as NodeXPath() writes them. Those of the parts of an Exif
// element, and of the entries that point to them, come from the table in Directories.h.

inline constexpr const char* kExifPath = "/JPEG/Exif[@id='FFE1']";

// What the operating system also shows of a file (tags 9C9B to 9C9F).
inline constexpr const char* kTitlePath = "/JPEG/Exif[@id='FFE1']/IFD[@id='9C9B']";
inline constexpr const char* kCommentsPath = "/JPEG/Exif[@id='FFE1']/IFD[@id='9C9C']";
inline constexpr const char* kKeywordsPath = "/JPEG/Exif[@id='FFE1']/IFD[@id='9C9E']";
inline constexpr const char* kSubjectPath = "/JPEG/Exif[@id='FFE1']/IFD[@id='9C9F']";

// The same in any Exif element: an edited document may have one without an id.
inline constexpr const char* kAnyExifPath = "/JPEG/Exif";
inline constexpr const char* kAnyTitlePath = "/JPEG/Exif/IFD[@id='9C9B']";
inline constexpr const char* kAnyCameraModelPath = "/JPEG/Exif/IFD[@id='0110']";
inline constexpr const char* kAnyOrientationPath = "/JPEG/Exif/IFD[@id='0112']";
inline constexpr const char* kAnyDateTakenPath = "/JPEG/Exif/IFDE/IFD[@id='9003']";
inline constexpr const char* kAnyDateDigitisedPath = "/JPEG/Exif/IFDE/IFD[@id='9004']";
inline constexpr const char* kAnyPictureWidthPath = "/JPEG/Exif/IFDE/IFD[@id='A002']";
inline constexpr const char* kAnyPictureHeightPath = "/JPEG/Exif/IFDE/IFD[@id='A003']";
inline constexpr const char* kAnyThumbnailWidthPath = "/JPEG/Exif/IFD1/IFD[@id='0100']";
inline constexpr const char* kAnyThumbnailHeightPath = "/JPEG/Exif/IFD1/IFD[@id='0101']";
inline constexpr const char* kAnyThumbnailOrientationPath = "/JPEG/Exif/IFD1/IFD[@id='0112']";

} // namespace ovisto
