#pragma once

#include "common/xml/XmlNode.h"

#include <string_view>

namespace ovisto {

// The values of the attribute "d": the field types of TIFF 6.0, and one of our own.
inline constexpr int kByte = 1;
inline constexpr int kString = 2;
inline constexpr int kShort = 3;
inline constexpr int kLong = 4;
inline constexpr int kRational = 5;
inline constexpr int kSignedByte = 6;
inline constexpr int kUndefined = 7;
inline constexpr int kSignedShort = 8;
inline constexpr int kSignedLong = 9;
inline constexpr int kSignedRational = 10;
inline constexpr int kUnicodeString = 11; ///< UCS-2 text of the tags 9C9B to 9C9F; TIFF says FLOAT

/// The data type of a node, 0 when it has none. Raises kTypeMismatch for a "d" that is no number, kOverflow for one
/// that is too large.
int dataTypeOf(const XmlNode& node);

/// The name of a data type for people; empty for a number without one.
std::string_view dataTypeName(int dataType);

} // namespace ovisto
