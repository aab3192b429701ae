// SPDX-License-Identifier: MIT

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

// Those that only full documents have.
inline constexpr int kFloat = 11; ///< of all tags that are not texts of Windows
inline constexpr int kDouble = 12;
inline constexpr int kIfd = 13;         ///< the offset of a directory (TIFF Technical Note 1)
inline constexpr int kUtf8String = 129; ///< Exif 3.0

/// The bytes of an IFD entry that hold a value or, if it does not fit, its offset.
inline constexpr std::int64_t kValueFieldSize = 4;

/// The form of a value's text. Reader and writer have a function for each.
enum class ValueForm {
    Hexadecimal, ///< two digits a byte
    Text,
    WideText, ///< UCS-2 in the file
    RawText,  ///< bytes of unknown meaning, as characters
    Short,    ///< numbers separated by commas; signed ones are read and written as unsigned
    Long,
    Rational, ///< the same with fractions: two numbers with a slash
    Real,     ///< the same with decimal fractions
};

/// A data type.
struct DataType {
    int number;            ///< the value of the attribute "d"
    std::string_view name; ///< for people, in English; translated in the context "DataType"
    ValueForm form;
    std::int64_t size;       ///< bytes of a component
    std::int64_t mostInside; ///< how many components fit into the entry itself; more are stored outside
};

/// The data type with this number; null if there is none.
const DataType* findDataType(int number);

/// The data type with this number that an entry of `tag` has in a full document; null if there is none.
const DataType* findFullDataType(int number, int tag);

/// The data type of `entry`, an IFD element, as its document was read; null if there is none. Raises what dataTypeOf()
/// raises.
const DataType* dataTypeOfEntry(const ConstXmlNode& entry);

/// How many components the text of a value has in a file, terminators included.
std::int64_t componentCount(const DataType& type, const std::string& text);

/// The number of a node's data type, 0 if it has none. Raises kTypeMismatch if "d" is not a number, kOverflow if it is
/// too large.
int dataTypeOf(const ConstXmlNode& node);

/// The user-visible name of a data type; empty for an unknown number.
std::string_view dataTypeName(int number);

/// How many bytes a run of hexadecimal digits counts as: half as many, rounded to even.
std::int64_t hexByteCount(const std::string& text);

} // namespace ovisto
