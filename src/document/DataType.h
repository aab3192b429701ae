#pragma once

#include "common/xml/XmlNode.h"

#include <cstdint>
#include <string>
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

/// Bytes in an IFD entry for a value or, where that needs more, its offset.
inline constexpr std::int64_t kValueFieldSize = 4;

/// What the text of a value is. Reader and writer have one function for each.
enum class ValueForm {
    Hexadecimal, ///< two digits a byte
    Text,
    WideText, ///< UCS-2 in the file
    RawText,  ///< bytes of unknown meaning, as characters
    Short,    ///< numbers with commas between them; signed ones are read and written as unsigned
    Long,
    Rational, ///< the same with pairs of numbers, a stroke inside each
};

/// A data type.
struct DataType {
    int number;            ///< the value of the attribute "d"
    std::string_view name; ///< for people
    ValueForm form;
    std::int64_t size;       ///< bytes of a component
    std::int64_t mostInside; ///< components that stand in the entry itself; more stand outside
};

/// The data type of this number; null when there is none.
const DataType* findDataType(int number);

/// The components that the text of a value has in a file, terminators included.
std::int64_t componentCount(const DataType& type, const std::string& text);

/// The number of a node's data type, 0 when it has none. Raises kTypeMismatch for a "d" that is no number, kOverflow
/// for one that is too large.
int dataTypeOf(const ConstXmlNode& node);

/// The name of a data type for people; empty for a number without one.
std::string_view dataTypeName(int number);

/// The bytes that a run of hexadecimal digits stands for: half as many, with halves rounded to the even number.
std::int64_t hexByteCount(const std::string& text);

} // namespace ovisto
